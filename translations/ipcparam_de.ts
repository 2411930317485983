<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>JOBEDIT::AddNodeDialog</name>
    <message>
        <source>Add Chain</source>
        <translation>Kette hinzufügen</translation>
    </message>
    <message>
        <source>Filter by type, band or parameters</source>
        <translation>Nach Typ, Band oder Parametern filtern</translation>
    </message>
    <message>
        <source>Filter of the kinds</source>
        <translation>Filter der Arten</translation>
    </message>
    <message>
        <source>Kinds of chains</source>
        <translation>Arten von Ketten</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>&amp;Below:</source>
        <translation>&amp;Unter:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>%1 in new %2</source>
        <translation>%1 in neuem %2</translation>
    </message>
    <message>
        <source>No kind has this in its type, band or parameters.</source>
        <translation>Keine Art hat dies in Typ, Band oder Parametern.</translation>
    </message>
    <message>
        <source>The job has no node that this kind can be below.</source>
        <translation>Der Auftrag hat keinen Knoten, unter dem diese Art stehen kann.</translation>
    </message>
    <message>
        <source>Adds %1</source>
        <translation>Fügt %1 hinzu</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ChangeMark</name>
    <message>
        <source>Differs from the saved file: %1</source>
        <translation>Weicht von der gespeicherten Datei ab: %1</translation>
    </message>
    <message>
        <source>Differs from the default: %1</source>
        <translation>Weicht von der Vorgabe ab: %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ChangeText</name>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <comment>label of a value, content before and after</comment>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::CheckDock</name>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>&amp;Check Job</source>
        <translation>Auftrag &amp;prüfen</translation>
    </message>
    <message>
        <source>C&amp;heck</source>
        <translation>&amp;Prüfung</translation>
    </message>
    <message>
        <source>Findings of the check</source>
        <translation>Befunde der Prüfung</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>No value is at fault.</source>
        <translation>Kein Wert ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2; the first %3 are shown.</source>
        <translation>Fehler: %1, Warnungen: %2; die ersten %3 werden gezeigt.</translation>
    </message>
    <message>
        <source>Stopped before all values were checked; errors: %1, warnings: %2</source>
        <translation>Angehalten, bevor alle Werte geprüft waren; Fehler: %1, Warnungen: %2</translation>
    </message>
    <message>
        <source>Checking: %1 %, errors: %2, warnings: %3</source>
        <translation>Prüfung: %1 %, Fehler: %2, Warnungen: %3</translation>
    </message>
    <message>
        <source>Check (F7): errors %1, warnings %2</source>
        <translation>Prüfung (F7): Fehler %1, Warnungen %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::Checker</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>No item has the number %1; there are: %2.</source>
        <translation>Kein Eintrag hat die Nummer %1; es gibt: %2.</translation>
    </message>
    <message>
        <source>%1 is not permitted; permitted is: %2.</source>
        <translation>%1 ist nicht zulässig; zulässig ist: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date (yyyy-MM-dd).</source>
        <translation>„%1“ ist kein Datum (JJJJ-MM-TT).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time of the day (hh:mm).</source>
        <translation>„%1“ ist keine Uhrzeit (hh:mm).</translation>
    </message>
    <message>
        <source>%1 numbers do not fill rows of %2.</source>
        <translation>%1 Zahlen füllen keine Zeilen zu %2.</translation>
    </message>
    <message>
        <source>There are %1 rows; permitted are %2 at most.</source>
        <translation>Es gibt %1 Zeilen; zulässig sind höchstens %2.</translation>
    </message>
    <message>
        <source>Row %1: %2 is not permitted; permitted is: %3.</source>
        <translation>Zeile %1: %2 ist nicht zulässig; zulässig ist: %3.</translation>
    </message>
    <message>
        <source>Row %1: the range begins at %2, after its end at %3.</source>
        <translation>Zeile %1: Der Bereich beginnt bei %2, nach seinem Ende bei %3.</translation>
    </message>
    <message>
        <source>%1 is more than %2, which &quot;%3&quot; holds.</source>
        <translation>%1 ist mehr als %2, was „%3“ enthält.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>Language of the texts and form of numbers, for example de.</source>
        <translation>Sprache der Texte und Form der Zahlen, zum Beispiel de.</translation>
    </message>
    <message>
        <source>Job files.</source>
        <translation>Auftragsdateien.</translation>
    </message>
    <message>
        <source>%1 is no language.</source>
        <translation>%1 ist keine Sprache.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. jobedit render writes the dialogs as pictures.</source>
        <translation>Es gibt keinen Bildschirm für ein Fenster. jobedit render schreibt die Dialoge als Bilder.</translation>
    </message>
    <message>
        <source>jobedit %1--help tells more.</source>
        <translation>jobedit %1--help sagt mehr.</translation>
    </message>
    <message>
        <source>Standard output could not be written.</source>
        <translation>Die Standardausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Prints one JSON document (get, list, diff and check).</source>
        <translation>Gibt ein JSON-Dokument aus (get, list, diff und check).</translation>
    </message>
    <message>
        <source>One job at a time: %1 files are given, and %2 is no command.</source>
        <translation>Ein Auftrag auf einmal: %1 Dateien sind angegeben, und %2 ist kein Befehl.</translation>
    </message>
    <message>
        <source>--%1 belongs to %2.</source>
        <translation>--%1 gehört zu %2.</translation>
    </message>
    <message>
        <source>--json belongs to get, list, diff and check.</source>
        <translation>--json gehört zu get, list, diff und check.</translation>
    </message>
    <message>
        <source>%1 needs: %2</source>
        <translation>%1 braucht: %2</translation>
    </message>
    <message>
        <source>%1 takes no more than: %2</source>
        <translation>%1 nimmt nicht mehr als: %2</translation>
    </message>
    <message>
        <source>Edits the parameters of the processing chains of jobs.</source>
        <translation>Bearbeitet die Parameter der Verarbeitungsketten von Aufträgen.</translation>
    </message>
    <message>
        <source>edits a job; without a file a new one from the sample</source>
        <translation>bearbeitet einen Auftrag; ohne Datei einen neuen aus dem Beispiel</translation>
    </message>
    <message>
        <source>jobedit COMMAND --help tells more of a command.</source>
        <translation>jobedit BEFEHL --help sagt mehr zu einem Befehl.</translation>
    </message>
    <message>
        <source>Exit status: 0 done; 1 a difference, an error in a job, something not found or refused; 2 wrong arguments.</source>
        <translation>Rückgabewert: 0 erledigt; 1 ein Unterschied, ein Fehler in einem Auftrag, etwas nicht gefunden oder abgelehnt; 2 falsche Argumente.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::Commands</name>
    <message>
        <source>checks files; exit status 1 when one has an error</source>
        <translation>prüft Dateien; Rückgabewert 1, wenn eine einen Fehler hat</translation>
    </message>
    <message>
        <source>Names each finding with file, line, column, path and reason.</source>
        <translation>Nennt jeden Befund mit Datei, Zeile, Spalte, Pfad und Grund.</translation>
    </message>
    <message>
        <source>jobedit %1 --help tells more.</source>
        <translation>jobedit %1 --help sagt mehr.</translation>
    </message>
    <message>
        <source>Reading %1:</source>
        <translation>Lese %1:</translation>
    </message>
    <message>
        <source>(no value)</source>
        <translation>(kein Wert)</translation>
    </message>
    <message>
        <source>(node)</source>
        <translation>(Knoten)</translation>
    </message>
    <message>
        <source>(no node)</source>
        <translation>(kein Knoten)</translation>
    </message>
    <message>
        <source>--with belongs to --node.</source>
        <translation>--with gehört zu --node.</translation>
    </message>
    <message>
        <source>%1: the job has no node %2.</source>
        <translation>%1: Der Auftrag hat keinen Knoten %2.</translation>
    </message>
    <message>
        <source>lists what differs: path and both values</source>
        <translation>listet auf, was abweicht: Pfad und beide Werte</translation>
    </message>
    <message>
        <source>Compares the contents of all values, whether they stand in the files or not. Exit status 1 when there is a difference.</source>
        <translation>Vergleicht die Inhalte aller Werte, ob sie in den Dateien stehen oder nicht. Rückgabewert 1, wenn es einen Unterschied gibt.</translation>
    </message>
    <message>
        <source>Compares only this node of FILE1 ...</source>
        <translation>Vergleicht nur diesen Knoten von FILE1 ...</translation>
    </message>
    <message>
        <source>... with this node of FILE2; the same when absent.</source>
        <translation>... mit diesem Knoten von FILE2; ohne Angabe mit dem gleichen.</translation>
    </message>
    <message>
        <source>The stored form: independent of language, items by key.</source>
        <translation>Die gespeicherte Form: unabhängig von der Sprache, Einträge als Schlüssel.</translation>
    </message>
    <message>
        <source>%1: the job has no value %2.</source>
        <translation>%1: Der Auftrag hat keinen Wert %2.</translation>
    </message>
    <message>
        <source>prints values</source>
        <translation>gibt Werte aus</translation>
    </message>
    <message>
        <source>PATH is the whole path of a value, or its path below the job. &quot;*&quot; in it stands for any characters, &quot;?&quot; for one. Of one PATH without these the value alone is printed, else path, tab and value.</source>
        <translation>PATH ist der ganze Pfad eines Wertes oder sein Pfad unterhalb des Auftrags. „*“ darin steht für beliebige Zeichen, „?“ für eines. Bei einem einzigen PATH ohne diese wird nur der Wert ausgegeben, sonst Pfad, Tabulator und Wert.</translation>
    </message>
    <message>
        <source>lists values: path, value and unit</source>
        <translation>listet Werte auf: Pfad, Wert und Einheit</translation>
    </message>
    <message>
        <source>PATTERN is the path of a value, or of a node to list all below it. &quot;*&quot; in it stands for any characters, &quot;?&quot; for one.</source>
        <translation>PATTERN ist der Pfad eines Wertes oder eines Knotens, dann wird alles darunter aufgelistet. „*“ darin steht für beliebige Zeichen, „?“ für eines.</translation>
    </message>
    <message>
        <source>Only values that differ from their defaults.</source>
        <translation>Nur Werte, die von ihrer Vorgabe abweichen.</translation>
    </message>
    <message>
        <source>The nodes instead: path and type.</source>
        <translation>Stattdessen die Knoten: Pfad und Typ.</translation>
    </message>
    <message>
        <source>--chains is a number from 1 to 100000.</source>
        <translation>--chains ist eine Zahl von 1 bis 100000.</translation>
    </message>
    <message>
        <source>--channels is a number from 1 to %1.</source>
        <translation>--channels ist eine Zahl von 1 bis %1.</translation>
    </message>
    <message>
        <source>--vary is a number from 0.</source>
        <translation>--vary ist eine Zahl ab 0.</translation>
    </message>
    <message>
        <source>--channels and --vary belong to --chains.</source>
        <translation>--channels und --vary gehören zu --chains.</translation>
    </message>
    <message>
        <source>%1 exists. --force replaces it.</source>
        <translation>%1 gibt es schon. --force ersetzt es.</translation>
    </message>
    <message>
        <source>%1 is open in another editor: %2. --force writes it nevertheless.</source>
        <translation>%1 ist in einem anderen Editor geöffnet: %2. --force schreibt trotzdem.</translation>
    </message>
    <message>
        <source>writes a new job like the sample</source>
        <translation>schreibt einen neuen Auftrag wie das Beispiel</translation>
    </message>
    <message>
        <source>With --chains the tasks of the job are repeated under new names, for trying out how large jobs behave.</source>
        <translation>Mit --chains werden die Aufgaben des Auftrags unter neuen Namen wiederholt, um zu sehen, wie sich große Aufträge verhalten.</translation>
    </message>
    <message>
        <source>Like this job instead of the sample.</source>
        <translation>Wie dieser Auftrag statt wie das Beispiel.</translation>
    </message>
    <message>
        <source>How many chains the job has in all.</source>
        <translation>Wie viele Ketten der Auftrag insgesamt hat.</translation>
    </message>
    <message>
        <source>How many channels each new node has that has any.</source>
        <translation>Wie viele Kanäle jeder neue Knoten hat, der welche hat.</translation>
    </message>
    <message>
        <source>Gives a third of the new values other contents; the same number gives the same contents.</source>
        <translation>Gibt einem Drittel der neuen Werte andere Inhalte; die gleiche Zahl ergibt die gleichen Inhalte.</translation>
    </message>
    <message>
        <source>Writes every value, not only what differs from its default.</source>
        <translation>Schreibt jeden Wert, nicht nur was von der Vorgabe abweicht.</translation>
    </message>
    <message>
        <source>Replaces FILE when it exists.</source>
        <translation>Ersetzt FILE, wenn es die Datei gibt.</translation>
    </message>
    <message>
        <source>plan needs --out FILE with the suffix .svg or .png.</source>
        <translation>plan braucht --out FILE mit der Endung .svg oder .png.</translation>
    </message>
    <message>
        <source>writes the frequency plan of the job, SVG or PNG</source>
        <translation>schreibt den Frequenzplan des Auftrags, SVG oder PNG</translation>
    </message>
    <message>
        <source>One line per chain with its frequencies, bandwidths and ranges.</source>
        <translation>Eine Zeile je Kette mit ihren Frequenzen, Bandbreiten und Bereichen.</translation>
    </message>
    <message>
        <source>render needs --out DIR.</source>
        <translation>render braucht --out DIR.</translation>
    </message>
    <message>
        <source>There is no entry %1. There are: %2.</source>
        <translation>Es gibt keinen Eintrag %1. Es gibt: %2.</translation>
    </message>
    <message>
        <source>--form is job or standalone.</source>
        <translation>--form ist job oder standalone.</translation>
    </message>
    <message>
        <source>writes a picture of every tab of the dialogs</source>
        <translation>schreibt ein Bild jedes Registers der Dialoge</translation>
    </message>
    <message>
        <source>Without a file the dialogs of the sample job.</source>
        <translation>Ohne Datei die Dialoge des Beispielauftrags.</translation>
    </message>
    <message>
        <source>Directory that the pictures go into.</source>
        <translation>Verzeichnis für die Bilder.</translation>
    </message>
    <message>
        <source>Only the dialogs of this entry point or panel.</source>
        <translation>Nur die Dialoge dieses Einstiegs oder Panels.</translation>
    </message>
    <message>
        <source>job (when absent) or standalone.</source>
        <translation>job (ohne Angabe) oder standalone.</translation>
    </message>
    <message>
        <source>report needs --out FILE with the suffix .html or .pdf.</source>
        <translation>report braucht --out FILE mit der Endung .html oder .pdf.</translation>
    </message>
    <message>
        <source>writes the job as a document, HTML or PDF</source>
        <translation>schreibt den Auftrag als Dokument, HTML oder PDF</translation>
    </message>
    <message>
        <source>One table per node with labels, values and units. What differs from its default is marked.</source>
        <translation>Eine Tabelle je Knoten mit Bezeichnungen, Werten und Einheiten. Was von der Vorgabe abweicht, ist gekennzeichnet.</translation>
    </message>
    <message>
        <source>Only values that differ from their default.</source>
        <translation>Nur Werte, die von ihrer Vorgabe abweichen.</translation>
    </message>
    <message>
        <source>The job has no such value.</source>
        <translation>Der Auftrag hat keinen solchen Wert.</translation>
    </message>
    <message>
        <source>%1 is not of the form PATH=VALUE.</source>
        <translation>%1 hat nicht die Form PATH=VALUE.</translation>
    </message>
    <message>
        <source>%1 was not changed.</source>
        <translation>%1 wurde nicht geändert.</translation>
    </message>
    <message>
        <source>changes values, all of them or none</source>
        <translation>ändert Werte, alle oder keinen</translation>
    </message>
    <message>
        <source>VALUE is what one would type in the editor: 433.92M, an item&apos;s name or key, on or off. When a value is refused, nothing is written. Prints path, old and new value of what has changed. The previous version of the file stays beside it, with a &quot;~&quot; at the end of its name.</source>
        <translation>VALUE ist, was man im Editor tippen würde: 433,92M, Name oder Schlüssel eines Eintrags, ein oder aus. Wird ein Wert abgelehnt, wird nichts geschrieben. Gibt Pfad, alten und neuen Wert dessen aus, was geändert wurde. Die vorige Fassung der Datei bleibt daneben, mit „~“ am Ende des Namens.</translation>
    </message>
    <message>
        <source>Writes another file and leaves FILE alone.</source>
        <translation>Schreibt eine andere Datei und lässt FILE, wie sie ist.</translation>
    </message>
    <message>
        <source>Only tells what would change.</source>
        <translation>Sagt nur, was geändert würde.</translation>
    </message>
    <message>
        <source>Writes even what is open in another editor.</source>
        <translation>Schreibt auch, was in einem anderen Editor geöffnet ist.</translation>
    </message>
    <message>
        <source>Pictures of the editor itself, as its guide shows them.</source>
        <translation>Bilder des Editors selbst, wie seine Anleitung sie zeigt.</translation>
    </message>
    <message>
        <source>The picture, a file with the suffix .svg or .png.</source>
        <translation>Das Bild, eine Datei mit der Endung .svg oder .png.</translation>
    </message>
    <message>
        <source>--guide shows the sample job, and takes neither FILE nor --entry nor --form.</source>
        <translation>--guide zeigt den Beispielauftrag und nimmt weder FILE noch --entry noch --form.</translation>
    </message>
    <message>
        <source>Writing %1:</source>
        <translation>Schreibe %1:</translation>
    </message>
    <message>
        <source>The document, a file with the suffix .html or .pdf.</source>
        <translation>Das Dokument, eine Datei mit der Endung .html oder .pdf.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::CompareActions</name>
    <message>
        <source>Compare with &amp;File...</source>
        <translation>Mit &amp;Datei vergleichen...</translation>
    </message>
    <message>
        <source>Compare with &amp;Saved...</source>
        <translation>Mit &amp;Gespeichertem vergleichen...</translation>
    </message>
    <message>
        <source>Compare C&amp;hains...</source>
        <translation>&amp;Ketten vergleichen...</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Vergleich mit %1</translation>
    </message>
    <message>
        <source>The open job at the left, %1 at the right.</source>
        <translation>Links der geöffnete Auftrag, rechts %1.</translation>
    </message>
    <message>
        <source>Open job</source>
        <translation>Geöffneter Auftrag</translation>
    </message>
    <message>
        <source>&amp;Take Over from File</source>
        <translation>Aus Datei &amp;übernehmen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Compare with Saved</source>
        <translation>Mit Gespeichertem vergleichen</translation>
    </message>
    <message>
        <source>The open job at the left, what %1 holds at the right.</source>
        <translation>Links der geöffnete Auftrag, rechts was %1 enthält.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>&amp;Take Back to Saved</source>
        <translation>Auf Gespeichertes &amp;zurücknehmen</translation>
    </message>
    <message>
        <source>Compare Chains</source>
        <translation>Ketten vergleichen</translation>
    </message>
    <message>
        <source>&amp;Take Over from the Right</source>
        <translation>Von rechts &amp;übernehmen</translation>
    </message>
    <message>
        <source>File Changed by Somebody Else</source>
        <translation>Datei von jemand anderem geändert</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else since it was opened. Take over what is to come into the open job; what is not taken over stays as it is here, and saving overwrites the file without asking again.</source>
        <translation>%1 wurde von jemand anderem geändert, seit die Datei geöffnet wurde. Übernehmen Sie, was in den geöffneten Auftrag soll; was nicht übernommen wird, bleibt, wie es hier ist, und Speichern überschreibt die Datei, ohne noch einmal zu fragen.</translation>
    </message>
    <message>
        <source>Mine (open job)</source>
        <translation>Meine (geöffneter Auftrag)</translation>
    </message>
    <message>
        <source>Theirs (file)</source>
        <translation>Die anderen (Datei)</translation>
    </message>
    <message>
        <source>&amp;Take Over Theirs</source>
        <translation>Die anderen &amp;übernehmen</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Meine behalten</translation>
    </message>
    <message>
        <source>Compare with File</source>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Aufträge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Compare %1 with:</source>
        <translation>%1 vergleichen mit:</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>%1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>%1 was not taken over</source>
        <translation>%1 wurde nicht übernommen</translation>
    </message>
    <message>
        <source>To the &amp;Differences</source>
        <translation>Zu den &amp;Unterschieden</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lese %1</translation>
    </message>
    <message>
        <source>Two chains below %1; the left one takes over.</source>
        <translation>Zwei Ketten unter %1; die linke übernimmt.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::CompareDialog</name>
    <message>
        <source>Filter by node, parameter, key or value</source>
        <translation>Nach Knoten, Parameter, Schlüssel oder Wert filtern</translation>
    </message>
    <message>
        <source>Filter of the differences</source>
        <translation>Filter der Unterschiede</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Tick &amp;All</source>
        <translation>&amp;Alle ankreuzen</translation>
    </message>
    <message>
        <source>Tick &amp;None</source>
        <translation>&amp;Keine ankreuzen</translation>
    </message>
    <message>
        <source>S&amp;wap Sides</source>
        <translation>Seiten &amp;tauschen</translation>
    </message>
    <message>
        <source>%1 taken over, %2 refused, %3 differences left</source>
        <translation>%1 übernommen, %2 abgelehnt, %3 Unterschiede übrig</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>Es gibt keine Unterschiede.</translation>
    </message>
    <message>
        <source>%1 differences, %2 shown, %3 of these ticked</source>
        <translation>%1 Unterschiede, %2 gezeigt, %3 davon angekreuzt</translation>
    </message>
    <message>
        <source>Go to &amp;Left Field</source>
        <translation>Zum &amp;linken Feld gehen</translation>
    </message>
    <message>
        <source>&amp;Go to Field</source>
        <translation>Zum &amp;Feld gehen</translation>
    </message>
    <message>
        <source>Go to &amp;Right Field</source>
        <translation>Zum &amp;rechten Feld gehen</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Cancelled, nothing was taken over</source>
        <translation>Abgebrochen, nichts wurde übernommen</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::DialogPane</name>
    <message>
        <source>&amp;Job form</source>
        <translation>&amp;Auftragsform</translation>
    </message>
    <message>
        <source>Stand-&amp;alone form</source>
        <translation>&amp;Eigenständige Form</translation>
    </message>
    <message>
        <source>The node&apos;s parameters as a part of the job</source>
        <translation>Die Parameter des Knotens als Teil des Auftrags</translation>
    </message>
    <message>
        <source>The node&apos;s parameters on their own, with the general and antenna settings</source>
        <translation>Die Parameter des Knotens für sich, mit allgemeinen und Antenneneinstellungen</translation>
    </message>
    <message>
        <source>Select a node to see its parameters.</source>
        <translation>Wählen Sie einen Knoten, um seine Parameter zu sehen.</translation>
    </message>
    <message>
        <source>There are no panels for %1 in this form.</source>
        <translation>Für %1 gibt es in dieser Form keine Panels.</translation>
    </message>
    <message>
        <source>%1 has no parameters of its own to edit. Select a node that is not dimmed.</source>
        <translation>%1 hat keine eigenen Parameter. Wählen Sie einen Knoten, der nicht abgeblendet ist.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::DifferenceModel</name>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Not taken over because</source>
        <translation>Nicht übernommen, weil</translation>
    </message>
    <message>
        <source>(the chain itself)</source>
        <translation>(die Kette selbst)</translation>
    </message>
    <message>
        <source>Type of the node</source>
        <translation>Typ des Knotens</translation>
    </message>
    <message>
        <source>Whole node</source>
        <translation>Ganzer Knoten</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(fehlt)</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::DirectPanels</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Profile header</source>
        <translation>Profilkopf</translation>
    </message>
    <message>
        <source>Alarm conditions</source>
        <translation>Alarmbedingungen</translation>
    </message>
    <message>
        <source>Signal tracking</source>
        <translation>Signalverfolgung</translation>
    </message>
    <message>
        <source>Decoder</source>
        <translation>Decoder</translation>
    </message>
    <message>
        <source>Automatic recording</source>
        <translation>Automatische Aufzeichnung</translation>
    </message>
    <message>
        <source>Automatic recording of results</source>
        <translation>Automatische Aufzeichnung der Ergebnisse</translation>
    </message>
    <message>
        <source>Activity generation</source>
        <translation>Aktivitätserzeugung</translation>
    </message>
    <message>
        <source>Exciter</source>
        <translation>Erreger</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Direction finding and location</source>
        <translation>Peilung und Ortung</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::EditStep</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FieldMarks</name>
    <message>
        <source>Mar&amp;k Changed Fields</source>
        <translation>Geänderte Felder &amp;kennzeichnen</translation>
    </message>
    <message>
        <source>A filled bar marks a field that differs from the saved file, an outlined one a field that differs from its default.</source>
        <translation>Ein gefüllter Balken kennzeichnet ein Feld, das von der gespeicherten Datei abweicht, ein umrandeter ein Feld, das von seiner Vorgabe abweicht.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FieldMenu</name>
    <message>
        <source>Reset to &amp;Saved Value (%1)</source>
        <translation>Auf &amp;gespeicherten Wert zurücksetzen (%1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default (%1)</source>
        <translation>Auf &amp;Vorgabe zurücksetzen (%1)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Label: %1</source>
        <translation>Bezeichnung: %1</translation>
    </message>
    <message>
        <source>Key: %1</source>
        <translation>Schlüssel: %1</translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation>Bereich: %1</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Einheit: %1</translation>
    </message>
    <message>
        <source>Description: %1</source>
        <translation>Beschreibung: %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FieldNavigator</name>
    <message>
        <source>%1 is shown, but cannot be edited at the moment.</source>
        <translation>%1 wird gezeigt, kann aber zurzeit nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>No dialog shows %1 at the moment.</source>
        <translation>Zurzeit zeigt kein Dialog %1.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FieldTexts</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FindBar</name>
    <message>
        <source>Find a field by label, key, description, unit or node</source>
        <translation>Ein Feld nach Bezeichnung, Schlüssel, Beschreibung, Einheit oder Knoten suchen</translation>
    </message>
    <message>
        <source>Words that the field is found by</source>
        <translation>Wörter, nach denen das Feld gesucht wird</translation>
    </message>
    <message>
        <source>Fields found</source>
        <translation>Gefundene Felder</translation>
    </message>
    <message>
        <source>&amp;Find Field...</source>
        <translation>&amp;Feld suchen...</translation>
    </message>
    <message>
        <source>All words must occur somewhere. Both English and German labels are found.</source>
        <translation>Alle Wörter müssen irgendwo vorkommen. Englische und deutsche Bezeichnungen werden gefunden.</translation>
    </message>
    <message>
        <source>No field has all of these words.</source>
        <translation>Kein Feld hat alle diese Wörter.</translation>
    </message>
    <message>
        <source>Fields found: %1</source>
        <translation>Gefundene Felder: %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FindModel</name>
    <message>
        <source>... %1 more</source>
        <translation>... %1 weitere</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::FrequencyPlan</name>
    <message>
        <source>Wideband reception</source>
        <translation>Breitbandempfang</translation>
    </message>
    <message>
        <source>Searched range</source>
        <translation>Abgesuchter Bereich</translation>
    </message>
    <message>
        <source>Tuned receiver</source>
        <translation>Abgestimmter Empfänger</translation>
    </message>
    <message>
        <source>Channel in turn</source>
        <translation>Kanal der Reihe nach</translation>
    </message>
    <message>
        <source>Exciter</source>
        <translation>Erreger</translation>
    </message>
    <message>
        <source>Excluded</source>
        <translation>Ausgeschlossen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>what and its number</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 bis %3</translation>
    </message>
    <message>
        <source>%1: %2, bandwidth %3</source>
        <translation>%1: %2, Bandbreite %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (switched off)</source>
        <translation>%1 (ausgeschaltet)</translation>
    </message>
    <message>
        <source>Wideband reception, second channel</source>
        <translation>Breitbandempfang, zweiter Kanal</translation>
    </message>
    <message>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>Receiver scan</source>
        <translation>Suchlauf des Empfängers</translation>
    </message>
    <message>
        <source>Surveyed range</source>
        <translation>Überwachter Bereich</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Detected range</source>
        <translation>Bereich des Detektors</translation>
    </message>
    <message>
        <source>Profile limits</source>
        <translation>Grenzen des Profils</translation>
    </message>
    <message>
        <source>Wideband exciter</source>
        <translation>Breitband-Erreger</translation>
    </message>
    <message>
        <source>Exciter scan</source>
        <translation>Suchlauf des Erregers</translation>
    </message>
    <message>
        <source>Excluded from the receiver scan</source>
        <translation>Vom Suchlauf des Empfängers ausgenommen</translation>
    </message>
    <message>
        <source>Excluded from the scan</source>
        <translation>Vom Suchlauf ausgenommen</translation>
    </message>
    <message>
        <source>Excluded from detection</source>
        <translation>Von der Detektion ausgenommen</translation>
    </message>
    <message>
        <source>Reserved, never sent on</source>
        <translation>Reserviert, nie belegt</translation>
    </message>
    <message>
        <source>Receive frequency</source>
        <translation>Empfangsfrequenz</translation>
    </message>
    <message>
        <source>Channel frequency</source>
        <translation>Kanalfrequenz</translation>
    </message>
    <message>
        <source>Channel frequency, second channel</source>
        <translation>Kanalfrequenz, zweiter Kanal</translation>
    </message>
    <message>
        <source>Memory channel</source>
        <translation>Speicherkanal</translation>
    </message>
    <message>
        <source>Detected channel</source>
        <translation>Kanal des Detektors</translation>
    </message>
    <message>
        <source>Scan list</source>
        <translation>Suchliste</translation>
    </message>
    <message>
        <source>Hop set</source>
        <translation>Sprungvorrat</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Generator</translation>
    </message>
    <message>
        <source>Exciter scan list</source>
        <translation>Suchliste des Erregers</translation>
    </message>
    <message>
        <source>Exciter channel</source>
        <translation>Kanal des Erregers</translation>
    </message>
    <message>
        <source>Simulated emitter</source>
        <translation>Simulierter Sender</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::GuideWindow</name>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>userguide.md</source>
        <extracomment>The file of the guide in the language of the translation.</extracomment>
        <translation>userguide_de.md</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::HintBar</name>
    <message>
        <source>This is a new job, made from the sample. Select a node at the left to see its parameters; open a job of your own with Ctrl+O. F1 shows the guide.</source>
        <translation>Dies ist ein neuer Auftrag, aus dem Beispiel gemacht. Wählen Sie links einen Knoten, um seine Parameter zu sehen; öffnen Sie einen eigenen Auftrag mit Strg+O. F1 zeigt die Anleitung.</translation>
    </message>
    <message>
        <source>&amp;Do Not Show Again</source>
        <translation>&amp;Nicht mehr zeigen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::JobDiff</name>
    <message>
        <source>(node)</source>
        <translation>(Knoten)</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::JobDocument</name>
    <message>
        <source>%1 could not be locked against other editors.</source>
        <translation>%1 konnte nicht gegen andere Editoren gesperrt werden.</translation>
    </message>
    <message>
        <source>%1 is open in another editor as well: %2.</source>
        <translation>%1 ist auch in einem anderen Editor geöffnet: %2.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::JobLock</name>
    <message>
        <source>another editor, since %1</source>
        <translation>ein anderer Editor, seit %1</translation>
    </message>
    <message>
        <source>%1 on %2, process %3, since %4</source>
        <translation>%1 auf %2, Prozess %3, seit %4</translation>
    </message>
    <message>
        <source>%1 of %2 on %3, process %4, since %5</source>
        <translation>%1 von %2 auf %3, Prozess %4, seit %5</translation>
    </message>
    <message>
        <source>another editor has it by now: %1</source>
        <translation>inzwischen hat sie ein anderer Editor: %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::Languages</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::LargeJob</name>
    <message>
        <source>The job has %1 chains already.</source>
        <translation>Der Auftrag hat schon %1 Ketten.</translation>
    </message>
    <message>
        <source>The job has no chain that could be repeated.</source>
        <translation>Der Auftrag hat keine Kette, die wiederholt werden könnte.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::LockQuestion</name>
    <message>
        <source>%1 is open in another editor: %2.</source>
        <translation>%1 ist in einem anderen Editor geöffnet: %2.</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>It cannot be told from here whether that editor is still there. Take the file over only when you know that it is not: otherwise one of you overwrites what the other one saves.</source>
        <translation>Von hier aus ist nicht zu erkennen, ob es diesen Editor noch gibt. Übernehmen Sie die Datei nur, wenn Sie wissen, dass er nicht mehr läuft: Sonst überschreibt einer von Ihnen, was der andere speichert.</translation>
    </message>
    <message>
        <source>%1 could not be taken over.</source>
        <translation>%1 konnte nicht übernommen werden.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::LongWork</name>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::MainWindow</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>The sample job could not be made.</source>
        <translation>Der Beispielauftrag konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>Auftrag öffnen</translation>
    </message>
    <message>
        <source>Opened read-only, it can be saved under another name.</source>
        <translation>Schreibgeschützt geöffnet, lässt sie sich unter anderem Namen speichern.</translation>
    </message>
    <message>
        <source>Open &amp;Read-Only</source>
        <translation>Schreib&amp;geschützt öffnen</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>%1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 opened</source>
        <translation>%1 geöffnet</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Aufträge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New from Sample</source>
        <translation>&amp;Neu aus dem Beispiel</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Knoten</translation>
    </message>
    <message>
        <source>Open &amp;Panel</source>
        <translation>Panel &amp;öffnen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Job Form</source>
        <translation>&amp;Auftragsform</translation>
    </message>
    <message>
        <source>&amp;Stand-Alone Form</source>
        <translation>&amp;Eigenständige Form</translation>
    </message>
    <message>
        <source>Night &amp;Colours</source>
        <translation>Na&amp;chtfarben</translation>
    </message>
    <message>
        <source>&amp;Next Pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Job Editor</source>
        <translation>Ü&amp;ber den Auftragseditor</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Neuer Auftrag</translation>
    </message>
    <message>
        <source>%1[*] (read-only) - Job Editor</source>
        <translation>%1[*] (schreibgeschützt) - Auftragseditor</translation>
    </message>
    <message>
        <source>%1[*] - Job Editor</source>
        <translation>%1[*] - Auftragseditor</translation>
    </message>
    <message>
        <source>About Job Editor</source>
        <translation>Über den Auftragseditor</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Job Editor %1&lt;/h3&gt;&lt;p&gt;Edits the parameters of the processing chains of jobs.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Auftragseditor %1&lt;/h3&gt;&lt;p&gt;Bearbeitet die Parameter der Verarbeitungsketten von Aufträgen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Job Editor</source>
        <translation>Auftragseditor</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>Making a new job</source>
        <translation>Neuen Auftrag anlegen</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Re&amp;cover Edits...</source>
        <translation>Änderungen &amp;wiederherstellen...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>Fil&amp;tern...</translation>
    </message>
    <message>
        <source>%1: cancelled, nothing has changed</source>
        <translation>%1: abgebrochen, nichts hat sich geändert</translation>
    </message>
    <message>
        <source>&amp;Messages</source>
        <translation>&amp;Meldungen</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::MessageList</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::NodeActions</name>
    <message>
        <source>&amp;Add Chain...</source>
        <translation>Kette &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplizieren...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>%1 konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Name of the copy of %1:</source>
        <translation>&amp;Name der Kopie von %1:</translation>
    </message>
    <message>
        <source>%1 could not be duplicated.</source>
        <translation>%1 konnte nicht dupliziert werden.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>New &amp;name of %1:</source>
        <translation>Neuer &amp;Name von %1:</translation>
    </message>
    <message>
        <source>%1 could not be renamed.</source>
        <translation>%1 konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove %1 nodes with all their parameters?</source>
        <translation>%1 Knoten mit all ihren Parametern entfernen?</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>%1 could not be removed.</source>
        <translation>%1 konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Job Editor</source>
        <translation>Auftragseditor</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::NodeCopy</name>
    <message>
        <source>%1 is no node of a job of its own.</source>
        <translation>%1 ist kein eigener Knoten eines Auftrags.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::NodeKind</name>
    <message>
        <source>V/UHF</source>
        <translation>V/UHF</translation>
    </message>
    <message>
        <source>HF</source>
        <translation>HF</translation>
    </message>
    <message>
        <source>There is a node &quot;%1&quot; here already.</source>
        <translation>Hier gibt es schon einen Knoten „%1“.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::NodePane</name>
    <message>
        <source>Filter by name or type</source>
        <translation>Nach Name oder Typ filtern</translation>
    </message>
    <message>
        <source>Filter of the nodes</source>
        <translation>Filter der Knoten</translation>
    </message>
    <message>
        <source>Nodes of the job</source>
        <translation>Knoten des Auftrags</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::NodeTreeModel</name>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>%1
Type: %2</source>
        <translation>%1
Typ: %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PanelWindow</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ParameterSet</name>
    <message>
        <source>%1, tab %2</source>
        <translation>%1, Register %2</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>These are no parameters of a chain.</source>
        <translation>Dies sind keine Parameter einer Kette.</translation>
    </message>
    <message>
        <source>Version %1 of the format is not known.</source>
        <translation>Die Version %1 des Formats ist unbekannt.</translation>
    </message>
    <message>
        <source>Value %1 has no path or no content.</source>
        <translation>Der Wert %1 hat keinen Pfad oder keinen Inhalt.</translation>
    </message>
    <message>
        <source>The clipboard holds no parameters.</source>
        <translation>Die Zwischenablage enthält keine Parameter.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PlanActions</name>
    <message>
        <source>Frequency Plan</source>
        <translation>Frequenzplan</translation>
    </message>
    <message>
        <source>&amp;Frequency Plan</source>
        <translation>&amp;Frequenzplan</translation>
    </message>
    <message>
        <source>Frequency plan of a new job</source>
        <translation>Frequenzplan eines neuen Auftrags</translation>
    </message>
    <message>
        <source>Frequency plan of %1</source>
        <translation>Frequenzplan von %1</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>The frequency plan could not be written.</source>
        <translation>Der Frequenzplan konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>plan.svg</source>
        <translation>plan.svg</translation>
    </message>
    <message>
        <source>Export Frequency Plan</source>
        <translation>Frequenzplan ausgeben</translation>
    </message>
    <message>
        <source>Drawing (*.svg);;Picture (*.png)</source>
        <translation>Zeichnung (*.svg);;Bild (*.png)</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PlanPainter</name>
    <message>
        <source>HF</source>
        <translation>HF</translation>
    </message>
    <message>
        <source>V/UHF</source>
        <translation>V/UHF</translation>
    </message>
    <message>
        <source>Switched off</source>
        <translation>Ausgeschaltet</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PlanPane</name>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Show the whole band</source>
        <translation>Das ganze Band zeigen</translation>
    </message>
    <message>
        <source>Show Chain</source>
        <translation>Kette zeigen</translation>
    </message>
    <message>
        <source>Show what the selected chain does</source>
        <translation>Zeigen, was die gewählte Kette tut</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Ausgeben...</translation>
    </message>
    <message>
        <source>Write the plan as a picture</source>
        <translation>Den Plan als Bild schreiben</translation>
    </message>
    <message>
        <source>No chain of the plan is selected.</source>
        <translation>Keine Kette des Plans ist gewählt.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PlanPicture</name>
    <message>
        <source>%1: no chain has a frequency.</source>
        <translation>%1: Keine Kette hat eine Frequenz.</translation>
    </message>
    <message>
        <source>A frequency plan is written as .svg or .png.</source>
        <translation>Ein Frequenzplan wird als .svg oder .png geschrieben.</translation>
    </message>
    <message>
        <source>The picture could not be painted: %1</source>
        <translation>Das Bild konnte nicht gemalt werden: %1</translation>
    </message>
    <message>
        <source>Frequency plan of a job</source>
        <translation>Frequenzplan eines Auftrags</translation>
    </message>
    <message>
        <source>A PNG of %1 by %2 points is too large; an SVG has no such limit.</source>
        <translation>Ein PNG von %1 mal %2 Punkten ist zu groß; ein SVG hat keine solche Grenze.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Der Speicher reicht nicht für das Bild.</translation>
    </message>
    <message>
        <source>Frequency plan of a new job</source>
        <translation>Frequenzplan eines neuen Auftrags</translation>
    </message>
    <message>
        <source>Frequency plan of %1</source>
        <translation>Frequenzplan von %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PlanView</name>
    <message>
        <source>Frequency plan of the HF chains</source>
        <translation>Frequenzplan der HF-Ketten</translation>
    </message>
    <message>
        <source>Frequency plan of the V/UHF chains</source>
        <translation>Frequenzplan der V/UHF-Ketten</translation>
    </message>
    <message>
        <source>Up and Down go through the chains, Return opens one; plus and minus zoom, Left and Right move, Home shows all, the asterisk the selected chain.</source>
        <translation>Auf und Ab gehen durch die Ketten, die Eingabetaste öffnet eine; Plus und Minus vergrößern und verkleinern, Links und Rechts verschieben, Pos1 zeigt alles, der Stern die gewählte Kette.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Typ: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more: zoom in</source>
        <translation>
            <numerusform>und %n weiterer: vergrößern</numerusform>
            <numerusform>und %n weitere: vergrößern</numerusform>
        </translation>
    </message>
    <message>
        <source>No chain has a frequency in this band.</source>
        <translation>In diesem Band hat keine Kette eine Frequenz.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::PresetDialog</name>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>There are no presets yet. Save those of a tab or a chain from the Edit menu.</source>
        <translation>Es gibt noch keine Vorlagen. Speichern Sie die eines Registers oder einer Kette über das Menü Bearbeiten.</translation>
    </message>
    <message>
        <source>%1 parameters of %2 (%3)</source>
        <translation>%1 Parameter von %2 (%3)</translation>
    </message>
    <message>
        <source>This preset is damaged. %1</source>
        <translation>Diese Vorlage ist beschädigt. %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Vorlage umbenennen</translation>
    </message>
    <message>
        <source>New &amp;name of %1:</source>
        <translation>Neuer &amp;Name von %1:</translation>
    </message>
    <message>
        <source>There is a preset of that name already.</source>
        <translation>Es gibt schon eine Vorlage dieses Namens.</translation>
    </message>
    <message>
        <source>Delete the preset %1? This cannot be undone.</source>
        <translation>Die Vorlage %1 löschen? Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::Presets</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Vorlage braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (nicht da)</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::RecoveryJournal</name>
    <message>
        <source>Edits that are not saved cannot be kept for the case of a crash. Save often.</source>
        <translation>Änderungen, die nicht gespeichert sind, können für den Fall eines Absturzes nicht aufbewahrt werden. Speichern Sie oft.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::RecoveryOffer</name>
    <message>
        <source>Recover Edits</source>
        <translation>Änderungen wiederherstellen</translation>
    </message>
    <message>
        <source>No edits were left behind.</source>
        <translation>Es sind keine Änderungen zurückgeblieben.</translation>
    </message>
    <message>
        <source>Restored, they can be taken back by Undo, and are saved when you save the job.</source>
        <translation>Wiederhergestellt können sie rückgängig gemacht werden, und sie werden gespeichert, wenn Sie den Auftrag speichern.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Nothing can be brought back. The file is %1.</source>
        <translation>Nichts kann zurückgeholt werden. Die Datei ist %1.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>An editor ended without saving, and it cannot be read which job it edited.</source>
        <translation>Ein Editor wurde beendet, ohne zu speichern, und es ist nicht zu lesen, welchen Auftrag er bearbeitet hat.</translation>
    </message>
    <message>
        <source>An editor ended without saving a new job. Its edits since %1 are still there.</source>
        <translation>Ein Editor wurde beendet, ohne einen neuen Auftrag zu speichern. Seine Änderungen seit %1 sind noch da.</translation>
    </message>
    <message>
        <source>An editor ended without saving %1. The edits since %2 are still there.</source>
        <translation>Ein Editor wurde beendet, ohne %1 zu speichern. Die Änderungen seit %2 sind noch da.</translation>
    </message>
    <message>
        <source>Changes: %1.</source>
        <translation>Änderungen: %1.</translation>
    </message>
    <message>
        <source>The file of the job has vanished since.</source>
        <translation>Die Datei des Auftrags ist seitdem verschwunden.</translation>
    </message>
    <message>
        <source>The file of the job was changed since. The edits would be made in what it holds now.</source>
        <translation>Die Datei des Auftrags wurde seitdem geändert. Die Änderungen würden in dem gemacht, was sie jetzt enthält.</translation>
    </message>
    <message>
        <source>Records that are damaged and lost: %1.</source>
        <translation>Beschädigte und verlorene Aufzeichnungen: %1.</translation>
    </message>
    <message>
        <source>Edits that were not saved were brought back</source>
        <translation>Änderungen, die nicht gespeichert waren, wurden zurückgeholt</translation>
    </message>
    <message>
        <source>Some edits are lost</source>
        <translation>Einige Änderungen sind verloren</translation>
    </message>
    <message>
        <source>A change could not be brought back</source>
        <translation>Eine Änderung konnte nicht zurückgeholt werden</translation>
    </message>
    <message>
        <source>Some changes could not be brought back: %1 of %2. The messages list them, and %3 keeps them.</source>
        <translation>Einige Änderungen konnten nicht zurückgeholt werden: %1 von %2. Die Meldungen führen sie auf, und %3 behält sie.</translation>
    </message>
    <message>
        <source>Restore unsaved edits</source>
        <translation>Nicht gespeicherte Änderungen wiederherstellen</translation>
    </message>
    <message>
        <source>the job has no such value</source>
        <translation>der Auftrag hat keinen solchen Wert</translation>
    </message>
    <message>
        <source>%1 (content &quot;%2&quot;)</source>
        <translation>%1 (Inhalt „%2“)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::Render</name>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 could not be made.</source>
        <translation>%1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The job has nothing to show for this.</source>
        <translation>Der Auftrag hat dazu nichts zu zeigen.</translation>
    </message>
    <message>
        <source>%1 pictures in %2</source>
        <translation>%1 Bilder in %2</translation>
    </message>
    <message>
        <source>The sample job could not be made.</source>
        <translation>Der Beispielauftrag konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The sample job has no %1.</source>
        <translation>Der Beispielauftrag hat kein %1.</translation>
    </message>
    <message>
        <source>The editor did not come to rest.</source>
        <translation>Der Editor kam nicht zur Ruhe.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ReportActions</name>
    <message>
        <source>Repor&amp;t...</source>
        <translation>Berich&amp;t...</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>The job as a document: all values of all chains, with their units.</source>
        <translation>Der Auftrag als Dokument: alle Werte aller Ketten mit ihren Einheiten.</translation>
    </message>
    <message>
        <source>&amp;PDF, for printing</source>
        <translation>&amp;PDF, zum Drucken</translation>
    </message>
    <message>
        <source>&amp;HTML, for reading and searching</source>
        <translation>&amp;HTML, zum Lesen und Suchen</translation>
    </message>
    <message>
        <source>&amp;Only values that differ from their default</source>
        <translation>&amp;Nur Werte, die von ihrer Vorgabe abweichen</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>P&amp;rint...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>report</source>
        <translation>bericht</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>HTML documents (*.html *.htm)</source>
        <translation>HTML-Dokumente (*.html *.htm)</translation>
    </message>
    <message>
        <source>The job has %1 values: some %2 pages.</source>
        <translation>Der Auftrag hat %1 Werte: etwa %2 Seiten.</translation>
    </message>
    <message>
        <source>With only the values that differ from their default it is shorter. HTML is written within seconds at any size.</source>
        <translation>Nur mit den Werten, die von ihrer Vorgabe abweichen, ist er kürzer. HTML wird in jeder Größe in Sekunden geschrieben.</translation>
    </message>
    <message>
        <source>Only &amp;Changes</source>
        <translation>Nur &amp;Änderungen</translation>
    </message>
    <message>
        <source>&amp;All Values</source>
        <translation>&amp;Alle Werte</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 schreiben</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>The report was cancelled.</source>
        <translation>Der Bericht wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The report could not be written.</source>
        <translation>Der Bericht konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Job %1</source>
        <translation>Auftrag %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The report was given to the printer.</source>
        <translation>Der Bericht wurde an den Drucker gegeben.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Der Bericht konnte nicht gedruckt werden.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ReportContent</name>
    <message>
        <source>A report is written as .html or .pdf.</source>
        <translation>Ein Bericht wird als .html oder .pdf geschrieben.</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Neuer Auftrag</translation>
    </message>
    <message>
        <source>Job %1</source>
        <translation>Auftrag %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Verfasser</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Angelegt</translation>
    </message>
    <message>
        <source>Last modified</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Chains and panels</source>
        <translation>Ketten und Panels</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Values that differ from their default</source>
        <translation>Werte, die von ihrer Vorgabe abweichen</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>only values that differ from their default</source>
        <translation>nur Werte, die von ihrer Vorgabe abweichen</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Gedruckt</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ReportHtml</name>
    <message>
        <source>● marks values that differ from their default.</source>
        <translation>● kennzeichnet Werte, die von ihrer Vorgabe abweichen.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>● %1</source>
        <translation>● %1</translation>
    </message>
    <message>
        <source>No value differs from its default.</source>
        <translation>Kein Wert weicht von seiner Vorgabe ab.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>default: empty</source>
        <translation>Vorgabe: leer</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ReportLabels</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ReportPages</name>
    <message>
        <source>Marked and in bold: values that differ from their default.</source>
        <translation>Gekennzeichnet und fett: Werte, die von ihrer Vorgabe abweichen.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>No value differs from its default.</source>
        <translation>Kein Wert weicht von seiner Vorgabe ab.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>default: empty</source>
        <translation>Vorgabe: leer</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ReuseActions</name>
    <message>
        <source>Copy &amp;Tab&apos;s Parameters</source>
        <translation>Parameter des Re&amp;gisters kopieren</translation>
    </message>
    <message>
        <source>Copy C&amp;hain&apos;s Parameters</source>
        <translation>Parameter der &amp;Kette kopieren</translation>
    </message>
    <message>
        <source>Paste Parameters</source>
        <translation>Parameter einfügen</translation>
    </message>
    <message>
        <source>Apply Preset %1</source>
        <translation>Vorlage %1 anwenden</translation>
    </message>
    <message>
        <source>The preset %1 could not be read.</source>
        <translation>Die Vorlage %1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Save &amp;Tab as Preset...</source>
        <translation>&amp;Register als Vorlage speichern...</translation>
    </message>
    <message>
        <source>Save &amp;Chain as Preset...</source>
        <translation>&amp;Kette als Vorlage speichern...</translation>
    </message>
    <message>
        <source>&amp;Manage Presets...</source>
        <translation>&amp;Vorlagen verwalten...</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>&amp;Name of the preset with %1 parameters:</source>
        <translation>&amp;Name der Vorlage mit %1 Parametern:</translation>
    </message>
    <message>
        <source>There is a preset %1 already. Replace it?</source>
        <translation>Es gibt schon eine Vorlage %1. Ersetzen?</translation>
    </message>
    <message>
        <source>There is a preset %1 already, which is damaged: %2

Replace it?</source>
        <translation>Es gibt schon eine Vorlage %1, die beschädigt ist: %2

Ersetzen?</translation>
    </message>
    <message>
        <source>The preset %1 was saved with %2 parameters.</source>
        <translation>Die Vorlage %1 wurde mit %2 Parametern gespeichert.</translation>
    </message>
    <message>
        <source>The preset %1 could not be saved.</source>
        <translation>Die Vorlage %1 konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translation>%1 wurde nicht geschrieben</translation>
    </message>
    <message>
        <source>%1: %2 parameters changed in %3 chains, %4 did not fit.</source>
        <translation>%1: %2 Parameter in %3 Ketten geändert, %4 passten nicht.</translation>
    </message>
    <message>
        <source>%1 parameters of %2 copied</source>
        <translation>%1 Parameter von %2 kopiert</translation>
    </message>
    <message>
        <source>There is no tab with parameters to take.</source>
        <translation>Es gibt kein Register mit Parametern.</translation>
    </message>
    <message>
        <source>The selected node has no parameters to take.</source>
        <translation>Der gewählte Knoten hat keine Parameter.</translation>
    </message>
    <message>
        <source>Past&amp;e Parameters into Selected Chains</source>
        <translation>Parameter in gewählte Ketten e&amp;infügen</translation>
    </message>
    <message>
        <source>Preset&amp;s</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>%1: cancelled, nothing has changed</source>
        <translation>%1: abgebrochen, nichts hat sich geändert</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::Saving</name>
    <message>
        <source>Saving %1</source>
        <translation>%1 speichern</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>new.job.xml</source>
        <translation>neu.job.xml</translation>
    </message>
    <message>
        <source>Save Job</source>
        <translation>Auftrag speichern</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Aufträge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>it is open in another editor: %1</source>
        <translation>er ist in einem anderen Editor geöffnet: %1</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else since it was opened.</source>
        <translation>%1 wurde von jemand anderem geändert, seit die Datei geöffnet wurde.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Vergleichen...</translation>
    </message>
    <message>
        <source>Looking into %1</source>
        <translation>%1 ansehen</translation>
    </message>
    <message>
        <source>%1 is no job that can be read.</source>
        <translation>%1 ist kein Auftrag, der gelesen werden kann.</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>%1 konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Your changes are still there. They can be saved in another place.</source>
        <translation>Ihre Änderungen sind noch da. Sie können an einem anderen Ort gespeichert werden.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; was refused and is not saved</source>
        <translation>Die Eingabe „%1“ wurde abgelehnt und ist nicht gespeichert</translation>
    </message>
    <message>
        <source>The job can be saved in another place.</source>
        <translation>Der Auftrag kann an einem anderen Ort gespeichert werden.</translation>
    </message>
    <message>
        <source>The new job</source>
        <translation>Der neue Auftrag</translation>
    </message>
    <message>
        <source>Job Editor</source>
        <translation>Auftragseditor</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::StructureEdit</name>
    <message>
        <source>Add node %1</source>
        <translation>Knoten %1 hinzufügen</translation>
    </message>
    <message>
        <source>Remove node %1</source>
        <translation>Knoten %1 entfernen</translation>
    </message>
    <message>
        <source>Rename node %1 to %2</source>
        <translation>Knoten %1 in %2 umbenennen</translation>
    </message>
    <message>
        <source>Duplicate node %1 as %2</source>
        <translation>Knoten %1 als %2 duplizieren</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::TakeOver</name>
    <message>
        <source>The type of a node cannot be taken over.</source>
        <translation>Der Typ eines Knotens kann nicht übernommen werden.</translation>
    </message>
    <message>
        <source>The node belongs to the one above it and cannot be removed by itself.</source>
        <translation>Der Knoten gehört zu dem darüber und kann nicht für sich entfernt werden.</translation>
    </message>
    <message>
        <source>The node belongs to the one above it and cannot be added by itself.</source>
        <translation>Der Knoten gehört zu dem darüber und kann nicht für sich hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Only one side has the parameter: the nodes have different groups.</source>
        <translation>Nur eine Seite hat den Parameter: Die Knoten haben verschiedene Gruppen.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::TypedValue</name>
    <message>
        <source>&quot;%1&quot; is neither on nor off</source>
        <translation>„%1“ ist weder ein noch aus</translation>
    </message>
    <message>
        <source>There is no item &quot;%1&quot;. There are: %2</source>
        <translation>Es gibt keinen Eintrag „%1“. Es gibt: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large</source>
        <translation>„%1“ ist zu groß</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ValueTexts</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ValueWriting</name>
    <message>
        <source>There is no item %1 here.</source>
        <translation>Hier gibt es keinen Eintrag %1.</translation>
    </message>
    <message>
        <source>There is no such parameter here.</source>
        <translation>Hier gibt es keinen solchen Parameter.</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ValuesDock</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Filter by label, key, path or value</source>
        <translation>Nach Bezeichnung, Schlüssel, Pfad oder Wert filtern</translation>
    </message>
    <message>
        <source>Filter of the values</source>
        <translation>Filter der Werte</translation>
    </message>
    <message>
        <source>Values of the job</source>
        <translation>Werte des Auftrags</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>By node, in the order of the job</source>
        <translation>Nach Knoten, in der Reihenfolge des Auftrags</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Only values that differ from the saved file</source>
        <translation>Nur Werte, die von der gespeicherten Datei abweichen</translation>
    </message>
    <message>
        <source>Not default</source>
        <translation>Nicht Vorgabe</translation>
    </message>
    <message>
        <source>Only values that differ from the default</source>
        <translation>Nur Werte, die von der Vorgabe abweichen</translation>
    </message>
    <message>
        <source>This node</source>
        <translation>Dieser Knoten</translation>
    </message>
    <message>
        <source>Only values of the selected node and those below it</source>
        <translation>Nur Werte des gewählten Knotens und derer darunter</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Werte</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>Wert &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Context &amp;Menu</source>
        <translation>Kontext&amp;menü</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Werte: %1</translation>
    </message>
    <message>
        <source>&amp;Go to Field</source>
        <translation>Zum &amp;Feld gehen</translation>
    </message>
</context>
<context>
    <name>JOBEDIT::ValuesModel</name>
    <message>
        <source>Label</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Schritt nach oben</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Schritt nach &amp;unten</translation>
    </message>
</context>
<context>
    <name>REPORTGENERATOR::Exciter_Settings</name>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Fixed frequency</source>
        <translation>Festfrequenz</translation>
    </message>
    <message>
        <source>WDE raster test</source>
        <translation>WDE-Rastertest</translation>
    </message>
    <message>
        <source>WDE scenario</source>
        <translation>WDE-Szenario</translation>
    </message>
    <message>
        <source>WDE scenario loop</source>
        <translation>WDE-Szenario, wiederholt</translation>
    </message>
    <message>
        <source>WDE single channel test</source>
        <translation>WDE-Einzelkanaltest</translation>
    </message>
    <message>
        <source>WDE channel group test</source>
        <translation>WDE-Kanalgruppentest</translation>
    </message>
    <message>
        <source>Frequency scan</source>
        <translation>Frequenzsuchlauf</translation>
    </message>
    <message>
        <source>List scan</source>
        <translation>Listensuchlauf</translation>
    </message>
    <message>
        <source>Memory scan</source>
        <translation>Speichersuchlauf</translation>
    </message>
</context>
<context>
    <name>TKE::ActivityGenerationDlg</name>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Min. Burst Duration :</source>
        <translation>Min. Burstdauer :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Max. Break Duration :</source>
        <translation>Max. Pausendauer :</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Production Channel :</source>
        <translation>Produktionskanal :</translation>
    </message>
    <message>
        <source>DDem</source>
        <translation>DDem</translation>
    </message>
    <message>
        <source>Criteria :</source>
        <translation>Kriterien :</translation>
    </message>
    <message>
        <source>Morse Quality Threshold :</source>
        <translation>Schwelle der Morsequalität :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Classifier</source>
        <translation>Klassifikator</translation>
    </message>
    <message>
        <source>Interm. Classification Score :</source>
        <translation>Zwischenwert der Klassifikation :</translation>
    </message>
    <message>
        <source>Final Classification Score :</source>
        <translation>Endwert der Klassifikation :</translation>
    </message>
    <message>
        <source>Start Score :</source>
        <translation>Startwert :</translation>
    </message>
    <message>
        <source>Stop Score :</source>
        <translation>Stoppwert :</translation>
    </message>
    <message>
        <source>Min. Classification Confidence :</source>
        <translation>Min. Klassifikationssicherheit :</translation>
    </message>
    <message>
        <source>Detection Conventional</source>
        <translation>Konventionelle Detektion</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Session Close Time :</source>
        <translation>Schließzeit der Sitzung :</translation>
    </message>
    <message>
        <source>Restart Attachments On Session Close :</source>
        <translation>Anhänge beim Schließen der Sitzung neu beginnen :</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Write to Database :</source>
        <translation>In die Datenbank schreiben :</translation>
    </message>
    <message>
        <source>Cut at Locations :</source>
        <translation>An Ortungen schneiden :</translation>
    </message>
    <message>
        <source>Write Energy Results :</source>
        <translation>Energieergebnisse schreiben :</translation>
    </message>
    <message>
        <source>Write DDem Results :</source>
        <translation>DDem-Ergebnisse schreiben :</translation>
    </message>
    <message>
        <source>Write Classifier Results :</source>
        <translation>Klassifikatorergebnisse schreiben :</translation>
    </message>
</context>
<context>
    <name>TKE::AlarmConditionsSPDlg</name>
    <message>
        <source>Minimal percentage of bursts that have to be within the profile frequency range &gt; threshold :</source>
        <translation>Mindestanteil der Bursts, die im Frequenzbereich des Profils liegen müssen &gt; Schwelle :</translation>
    </message>
    <message>
        <source>Maximal percentage of bursts that may be outside of the profile frequency range &gt; threshold :</source>
        <translation>Höchstanteil der Bursts, die außerhalb des Frequenzbereichs des Profils liegen dürfen &gt; Schwelle :</translation>
    </message>
    <message>
        <source>Minimal percentage of bursts that match the profile frequency list &gt; threshold :</source>
        <translation>Mindestanteil der Bursts, die zur Frequenzliste des Profils passen &gt; Schwelle :</translation>
    </message>
    <message>
        <source>Minimal percentage of bursts that have to match the profile modulation &gt; threshold :</source>
        <translation>Mindestanteil der Bursts, die zur Modulation des Profils passen müssen &gt; Schwelle :</translation>
    </message>
    <message>
        <source> Maximal percentage of time slots that contain no bursts &gt; threshold :</source>
        <translation>Höchstanteil der Zeitschlitze ohne Bursts &gt; Schwelle :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>TKE::AntennaDlg</name>
    <message>
        <source>Antenna selection</source>
        <translation>Antennenwahl</translation>
    </message>
    <message>
        <source>Antenna :</source>
        <translation>Antenne :</translation>
    </message>
    <message>
        <source>Polarisation :</source>
        <translation>Polarisation :</translation>
    </message>
    <message>
        <source>Preselection :</source>
        <translation>Vorselektion :</translation>
    </message>
    <message>
        <source>Direction :</source>
        <translation>Richtung :</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Attenuation :</source>
        <translation>Dämpfung :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Preamplifier On/Off</source>
        <translation>Vorverstärker ein/aus</translation>
    </message>
    <message>
        <source>Distribution output :</source>
        <translation>Verteilerausgang :</translation>
    </message>
    <message>
        <source>Tuner input :</source>
        <translation>Tunereingang :</translation>
    </message>
</context>
<context>
    <name>TKE::AutoRecordingDlg</name>
    <message>
        <source>Automatic Recording for</source>
        <translation>Automatische Aufzeichnung von</translation>
    </message>
    <message>
        <source>Record Results</source>
        <translation>Ergebnisse aufzeichnen</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Amrec</source>
        <translation>Amrec</translation>
    </message>
    <message>
        <source>Bitstream</source>
        <translation>Bitstrom</translation>
    </message>
    <message>
        <source>Decoded Text</source>
        <translation>Decodierter Text</translation>
    </message>
    <message>
        <source>Transmission Systems</source>
        <translation>Übertragungssysteme</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>FAX</translation>
    </message>
    <message>
        <source>Fixed frequency or scan</source>
        <translation>Festfrequenz oder Suchlauf</translation>
    </message>
    <message>
        <source>Scan type</source>
        <translation>Art des Suchlaufs</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Deselect all</source>
        <translation>Alle abwählen</translation>
    </message>
    <message>
        <source>Trigger by</source>
        <translation>Auslösen durch</translation>
    </message>
    <message>
        <source>TriggerMode :</source>
        <translation>Auslöseart :</translation>
    </message>
    <message>
        <source>Reappearance Time :</source>
        <translation>Wiederkehrzeit :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>First event</source>
        <translation>Erstes Ereignis</translation>
    </message>
    <message>
        <source>Combination of the events</source>
        <translation>Verknüpfung der Ereignisse</translation>
    </message>
    <message>
        <source>Second event</source>
        <translation>Zweites Ereignis</translation>
    </message>
    <message>
        <source>Threshold :</source>
        <translation>Schwelle :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
</context>
<context>
    <name>TKE::CfgCenter</name>
    <message>
        <source>The configuration %1 cannot be read.</source>
        <translation>Die Konfiguration %1 kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>TKE::ClassificatorDlg</name>
    <message>
        <source>Auto segmentation</source>
        <translation>Automatische Segmentierung</translation>
    </message>
    <message>
        <source>Segmentation frequency :</source>
        <translation>Segmentierungsfrequenz :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Segmentation bandw. :</source>
        <translation>Segmentierungsbandbr. :</translation>
    </message>
    <message>
        <source>Analog modulation</source>
        <translation>Analoge Modulation</translation>
    </message>
    <message>
        <source>Multi channel modulation</source>
        <translation>Mehrkanalmodulation</translation>
    </message>
    <message>
        <source>Symbol Recognition</source>
        <translation>Symbolerkennung</translation>
    </message>
    <message>
        <source>Mod. analysis method :</source>
        <translation>Verfahren der Mod.-Analyse :</translation>
    </message>
    <message>
        <source>ARQ modulation</source>
        <translation>ARQ-Modulation</translation>
    </message>
    <message>
        <source>Multitone modulation</source>
        <translation>Mehrtonmodulation</translation>
    </message>
    <message>
        <source>PSK modem</source>
        <translation>PSK-Modem</translation>
    </message>
</context>
<context>
    <name>TKE::CorrelatorDlg</name>
    <message>
        <source>Pattern 1</source>
        <translation>Muster 1</translation>
    </message>
    <message>
        <source>Pattern 2</source>
        <translation>Muster 2</translation>
    </message>
    <message>
        <source>Pattern 3</source>
        <translation>Muster 3</translation>
    </message>
    <message>
        <source>Pattern 4</source>
        <translation>Muster 4</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Name :</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Threshold :</source>
        <translation>Schwelle :</translation>
    </message>
</context>
<context>
    <name>TKE::DFLocateDlg</name>
    <message>
        <source>Direction finding</source>
        <translation>Peilung</translation>
    </message>
    <message>
        <source>Direction finding On/Off</source>
        <translation>Peilung ein/aus</translation>
    </message>
    <message>
        <source>DF mode :</source>
        <translation>Peilart :</translation>
    </message>
    <message>
        <source>DF bandwidth :</source>
        <translation>Peilbandbreite :</translation>
    </message>
    <message>
        <source>Integration time :</source>
        <translation>Integrationszeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Averaging :</source>
        <translation>Mittelung :</translation>
    </message>
    <message>
        <source>Level threshold :</source>
        <translation>Pegelschwelle :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Quality threshold :</source>
        <translation>Güteschwelle :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ortung</translation>
    </message>
    <message>
        <source>Location On/Off</source>
        <translation>Ortung ein/aus</translation>
    </message>
    <message>
        <source>Method :</source>
        <translation>Verfahren :</translation>
    </message>
    <message>
        <source>Min. number of bearings :</source>
        <translation>Mindestzahl der Peilungen :</translation>
    </message>
    <message>
        <source>Repetition :</source>
        <translation>Wiederholung :</translation>
    </message>
    <message>
        <source>Interval :</source>
        <translation>Abstand :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Max. uncertainty :</source>
        <translation>Max. Unsicherheit :</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>Layer height :</source>
        <translation>Schichthöhe :</translation>
    </message>
    <message>
        <source>Stations</source>
        <translation>Stationen</translation>
    </message>
</context>
<context>
    <name>TKE::DecoderDlg</name>
    <message>
        <source>Decoder module:</source>
        <translation>Decodermodul:</translation>
    </message>
    <message>
        <source>Alphabet:</source>
        <translation>Alphabet:</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorDlg</name>
    <message>
        <source>Demodulation:</source>
        <translation>Demodulation:</translation>
    </message>
    <message>
        <source>Frequency offset:</source>
        <translation>Frequenzablage:</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanel</name>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Variant :</source>
        <translation>Variante :</translation>
    </message>
    <message>
        <source>Baud rate :</source>
        <translation>Baudrate :</translation>
    </message>
    <message>
        <source>Bd</source>
        <translation>Bd</translation>
    </message>
    <message>
        <source>Baud rate capture range :</source>
        <translation>Fangbereich der Baudrate :</translation>
    </message>
    <message>
        <source>Baud rate tracking range :</source>
        <translation>Haltebereich der Baudrate :</translation>
    </message>
    <message>
        <source>Freq. offset tracking range :</source>
        <translation>Haltebereich der Freq.-Ablage :</translation>
    </message>
    <message>
        <source>Sideband :</source>
        <translation>Seitenband :</translation>
    </message>
    <message>
        <source>Primary modulation :</source>
        <translation>Primärmodulation :</translation>
    </message>
    <message>
        <source>Primary mod. bandwidth:</source>
        <translation>Bandbreite der Primärmod.:</translation>
    </message>
    <message>
        <source>AF center frequency :</source>
        <translation>NF-Mittenfrequenz :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelF7W</name>
    <message>
        <source>Baudrate channel A :</source>
        <translation>Baudrate Kanal A :</translation>
    </message>
    <message>
        <source>Bd</source>
        <translation>Bd</translation>
    </message>
    <message>
        <source>Baudrate channel B :</source>
        <translation>Baudrate Kanal B :</translation>
    </message>
    <message>
        <source>Switch channel to ACID :</source>
        <translation>Kanal auf ACID schalten :</translation>
    </message>
    <message>
        <source>Tone spacing (Hz) :</source>
        <translation>Tonabstand (Hz) :</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelFSK</name>
    <message>
        <source>Shift :</source>
        <translation>Shift :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Block length :</source>
        <translation>Blocklänge :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Block cycle :</source>
        <translation>Blockzyklus :</translation>
    </message>
    <message>
        <source>Tone spacing (Hz) :</source>
        <translation>Tonabstand (Hz) :</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelGMSK</name>
    <message>
        <source>Bandwidth multiplied by Time :</source>
        <translation>Bandbreite mal Zeit :</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelMFSK</name>
    <message>
        <source>Shift :</source>
        <translation>Shift :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Channel count :</source>
        <translation>Kanalzahl :</translation>
    </message>
    <message>
        <source>Visualisation channel :</source>
        <translation>Anzeigekanal :</translation>
    </message>
    <message>
        <source>same distance [Hz]</source>
        <translation>gleicher Abstand [Hz]</translation>
    </message>
    <message>
        <source>Channel spacing</source>
        <translation>Kanalabstand</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelMORSE</name>
    <message>
        <source>Auto mode</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Speed :</source>
        <translation>Geschwindigkeit :</translation>
    </message>
    <message>
        <source>wpm</source>
        <translation>WpM</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelMPSK</name>
    <message>
        <source>Channel count :</source>
        <translation>Kanalzahl :</translation>
    </message>
    <message>
        <source>Visualisation channel :</source>
        <translation>Anzeigekanal :</translation>
    </message>
    <message>
        <source>same distance [Hz]</source>
        <translation>gleicher Abstand [Hz]</translation>
    </message>
    <message>
        <source>Channel spacing</source>
        <translation>Kanalabstand</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelMT</name>
    <message>
        <source>Tone duration :</source>
        <translation>Tondauer :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Frequency offset tracking range :</source>
        <translation>Haltebereich der Frequenzablage :</translation>
    </message>
    <message>
        <source>Tone duration capture r. :</source>
        <translation>Fangb. der Tondauer :</translation>
    </message>
    <message>
        <source>Tone duration tracking r. :</source>
        <translation>Halteb. der Tondauer :</translation>
    </message>
    <message>
        <source>Number of channels :</source>
        <translation>Anzahl der Kanäle :</translation>
    </message>
    <message>
        <source>Tone spacing :</source>
        <translation>Tonabstand :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelPSK</name>
    <message>
        <source>FFE filter order :</source>
        <translation>FFE-Filterordnung :</translation>
    </message>
    <message>
        <source>Equalizer</source>
        <translation>Entzerrer</translation>
    </message>
    <message>
        <source>FFE Convergence Factor :</source>
        <translation>FFE-Konvergenzfaktor :</translation>
    </message>
</context>
<context>
    <name>TKE::DemodulatorPanelProcedural</name>
    <message>
        <source>Channel spacing :</source>
        <translation>Kanalabstand :</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>Drum speed:</source>
        <translation>Trommeldrehzahl:</translation>
    </message>
    <message>
        <source>lpm</source>
        <translation>Z/min</translation>
    </message>
    <message>
        <source>Cooperation index:</source>
        <translation>Modul:</translation>
    </message>
    <message>
        <source>Shift :</source>
        <translation>Shift :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Speedlevel:</source>
        <translation>Geschwindigkeitsstufe:</translation>
    </message>
    <message>
        <source>Use Automatic Mode</source>
        <translation>Automatik verwenden</translation>
    </message>
    <message>
        <source>Dataformat:</source>
        <translation>Datenformat:</translation>
    </message>
    <message>
        <source>Diversity:</source>
        <translation>Diversity:</translation>
    </message>
    <message>
        <source>Speedlevel :</source>
        <translation>Geschwindigkeitsstufe :</translation>
    </message>
    <message>
        <source>bps</source>
        <translation>bit/s</translation>
    </message>
    <message>
        <source>Interleaverlength :</source>
        <translation>Interleaverlänge :</translation>
    </message>
    <message>
        <source>Super Blocks :</source>
        <translation>Superblöcke :</translation>
    </message>
    <message>
        <source>UserDataRate:</source>
        <translation>Nutzdatenrate:</translation>
    </message>
    <message>
        <source>InterleaverMode:</source>
        <translation>Interleaverart:</translation>
    </message>
    <message>
        <source>Predefined Baudrate:</source>
        <translation>Vordefinierte Baudrate:</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>Custom Baudrate :</source>
        <translation>Eigene Baudrate :</translation>
    </message>
</context>
<context>
    <name>TKE::DetectionDlg</name>
    <message>
        <source>Detection quality :</source>
        <translation>Detektionsgüte :</translation>
    </message>
    <message>
        <source>Detection mode :</source>
        <translation>Detektionsart :</translation>
    </message>
    <message>
        <source>Decay time :</source>
        <translation>Abfallzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Max signal level :</source>
        <translation>Max. Signalpegel :</translation>
    </message>
    <message>
        <source>dBµV/Hz</source>
        <translation>dBµV/Hz</translation>
    </message>
    <message>
        <source>Min signal bandwidth :</source>
        <translation>Min. Signalbandbreite :</translation>
    </message>
    <message>
        <source>Max signal bandwidth :</source>
        <translation>Max. Signalbandbreite :</translation>
    </message>
    <message>
        <source>Noise level mode :</source>
        <translation>Art des Rauschpegels :</translation>
    </message>
    <message>
        <source>Noise level absolute :</source>
        <translation>Rauschpegel absolut :</translation>
    </message>
    <message>
        <source>Noise level relative :</source>
        <translation>Rauschpegel relativ :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Excluded ranges (MHz)</source>
        <translation>Ausgeschlossene Bereiche (MHz)</translation>
    </message>
    <message>
        <source>Excluded ranges (kHz)</source>
        <translation>Ausgeschlossene Bereiche (kHz)</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
</context>
<context>
    <name>TKE::DetectionShortDlg</name>
    <message>
        <source>Operating mode :</source>
        <translation>Betriebsart :</translation>
    </message>
    <message>
        <source>Analysis depth :</source>
        <translation>Analysetiefe :</translation>
    </message>
    <message>
        <source>Snapshot length :</source>
        <translation>Länge der Momentaufnahme :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Max signal level :</source>
        <translation>Max. Signalpegel :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Min signal bandwidth :</source>
        <translation>Min. Signalbandbreite :</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>Max signal bandwidth :</source>
        <translation>Max. Signalbandbreite :</translation>
    </message>
    <message>
        <source>Noise level mode :</source>
        <translation>Art des Rauschpegels :</translation>
    </message>
    <message>
        <source>Noise level :</source>
        <translation>Rauschpegel :</translation>
    </message>
    <message>
        <source>Min SNR :</source>
        <translation>Min. SNR :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
    <message>
        <source>Excluded ranges (MHz)</source>
        <translation>Ausgeschlossene Bereiche (MHz)</translation>
    </message>
    <message>
        <source>Excluded ranges (kHz)</source>
        <translation>Ausgeschlossene Bereiche (kHz)</translation>
    </message>
    <message>
        <source>Signal Length (ms)</source>
        <translation>Signallänge (ms)</translation>
    </message>
</context>
<context>
    <name>TKE::ExciterGeneralDlg</name>
    <message>
        <source>WDE Exciters</source>
        <translation>WDE-Erreger</translation>
    </message>
    <message>
        <source>Single channel detector</source>
        <translation>Einzelkanaldetektor</translation>
    </message>
    <message>
        <source>Raster channel detector</source>
        <translation>Rasterkanaldetektor</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Exciter mode :</source>
        <translation>Erregerbetriebsart :</translation>
    </message>
    <message>
        <source>Autostart</source>
        <translation>Autostart</translation>
    </message>
</context>
<context>
    <name>TKE::ExciterSCUDlg</name>
    <message>
        <source>Output path :</source>
        <translation>Ausgangspfad :</translation>
    </message>
    <message>
        <source>Attenuation :</source>
        <translation>Dämpfung :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Output filter :</source>
        <translation>Ausgangsfilter :</translation>
    </message>
    <message>
        <source>Level limit :</source>
        <translation>Pegelgrenze :</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>Amplifier On/Off</source>
        <translation>Verstärker ein/aus</translation>
    </message>
    <message>
        <source>Trigger :</source>
        <translation>Auslöser :</translation>
    </message>
    <message>
        <source>Settling time :</source>
        <translation>Einschwingzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Receiver blanking</source>
        <translation>Empfängeraustastung</translation>
    </message>
    <message>
        <source>Blanking time :</source>
        <translation>Austastzeit :</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Remark :</source>
        <translation>Bemerkung :</translation>
    </message>
</context>
<context>
    <name>TKE::ExciterSMUDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>generator frequency</source>
        <translation>Generatorfrequenz</translation>
    </message>
    <message>
        <source>Level :</source>
        <translation>Pegel :</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>RF output On/Off</source>
        <translation>HF-Ausgang ein/aus</translation>
    </message>
    <message>
        <source>Reference frequency :</source>
        <translation>Referenzfrequenz :</translation>
    </message>
    <message>
        <source>Start time :</source>
        <translation>Startzeit :</translation>
    </message>
    <message>
        <source>Modulation :</source>
        <translation>Modulation :</translation>
    </message>
    <message>
        <source>Modulation source :</source>
        <translation>Modulationsquelle :</translation>
    </message>
    <message>
        <source>Modulation depth :</source>
        <translation>Modulationsgrad :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Deviation :</source>
        <translation>Hub :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Symbol rate :</source>
        <translation>Symbolrate :</translation>
    </message>
    <message>
        <source>Bd</source>
        <translation>Bd</translation>
    </message>
    <message>
        <source>Tone frequency :</source>
        <translation>Tonfrequenz :</translation>
    </message>
    <message>
        <source>Message :</source>
        <translation>Nachricht :</translation>
    </message>
    <message>
        <source>Burst length :</source>
        <translation>Burstlänge :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Burst pause :</source>
        <translation>Burstpause :</translation>
    </message>
    <message>
        <source>Burst count :</source>
        <translation>Burstanzahl :</translation>
    </message>
</context>
<context>
    <name>TKE::ExciterScanSettingsDlg</name>
    <message>
        <source>Start frequency [kHz] :</source>
        <translation>Startfrequenz [kHz] :</translation>
    </message>
    <message>
        <source>start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Stop frequency [kHz] :</source>
        <translation>Stoppfrequenz [kHz] :</translation>
    </message>
    <message>
        <source>stop</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Step width [kHz] :</source>
        <translation>Schrittweite [kHz] :</translation>
    </message>
    <message>
        <source>step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>First memory channel :</source>
        <translation>Erster Speicherkanal :</translation>
    </message>
    <message>
        <source>Last memory channel :</source>
        <translation>Letzter Speicherkanal :</translation>
    </message>
    <message>
        <source>Dwell time :</source>
        <translation>Verweilzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Pause :</source>
        <translation>Pause :</translation>
    </message>
    <message>
        <source>Direction :</source>
        <translation>Richtung :</translation>
    </message>
    <message>
        <source>Cycles :</source>
        <translation>Durchläufe :</translation>
    </message>
    <message>
        <source>Start time :</source>
        <translation>Startzeit :</translation>
    </message>
    <message>
        <source>Scan frequencies</source>
        <translation>Suchlauffrequenzen</translation>
    </message>
    <message>
        <source>Start frequency [MHz] :</source>
        <translation>Startfrequenz [MHz] :</translation>
    </message>
    <message>
        <source>Stop frequency [MHz] :</source>
        <translation>Stoppfrequenz [MHz] :</translation>
    </message>
    <message>
        <source>Step width [MHz] :</source>
        <translation>Schrittweite [MHz] :</translation>
    </message>
</context>
<context>
    <name>TKE::ExciterWDEDlg</name>
    <message>
        <source>Centre frequency :</source>
        <translation>Mittenfrequenz :</translation>
    </message>
    <message>
        <source>centre frequency</source>
        <translation>Mittenfrequenz</translation>
    </message>
    <message>
        <source>Bandwidth :</source>
        <translation>Bandbreite :</translation>
    </message>
    <message>
        <source>Total level :</source>
        <translation>Gesamtpegel :</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>Sample rate :</source>
        <translation>Abtastrate :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Channel raster :</source>
        <translation>Kanalraster :</translation>
    </message>
    <message>
        <source>Active channels :</source>
        <translation>Aktive Kanäle :</translation>
    </message>
    <message>
        <source>Carrier phase :</source>
        <translation>Trägerphase :</translation>
    </message>
    <message>
        <source>Crest factor reduction</source>
        <translation>Crestfaktorverminderung</translation>
    </message>
    <message>
        <source>Reserved frequencies</source>
        <translation>Gesperrte Frequenzen</translation>
    </message>
</context>
<context>
    <name>TKE::FFTDataDlg</name>
    <message>
        <source>FFT length :</source>
        <translation>FFT-Länge :</translation>
    </message>
    <message>
        <source>Spectral resolution :</source>
        <translation>Spektrale Auflösung :</translation>
    </message>
    <message>
        <source>Refresh rate:</source>
        <translation>Wiederholrate:</translation>
    </message>
    <message>
        <source>(Refresh rate &gt;50: performance problems may occur)</source>
        <translation>(Wiederholrate &gt;50: Leistungsprobleme möglich)</translation>
    </message>
    <message>
        <source>Window type :</source>
        <translation>Fensterart :</translation>
    </message>
    <message>
        <source>FFT display mode :</source>
        <translation>FFT-Anzeigeart :</translation>
    </message>
    <message>
        <source>FFT measurement time :</source>
        <translation>FFT-Messzeit :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
</context>
<context>
    <name>TKE::Format</name>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>„%1“ ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date and time (yyyy-MM-ddThh:mm:ss)</source>
        <translation>„%1“ ist kein Zeitpunkt (jjjj-MM-ttThh:mm:ss)</translation>
    </message>
</context>
<context>
    <name>TKE::GeneralDlg</name>
    <message>
        <source>Detection Lock timeout :</source>
        <translation>Zeitgrenze bis zum Einrasten :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Detection Relock timeout :</source>
        <translation>Zeitgrenze bis zum Wiedereinrasten :</translation>
    </message>
    <message>
        <source>Lock criterion :</source>
        <translation>Einrastkriterium :</translation>
    </message>
    <message>
        <source>Max dwelltime :</source>
        <translation>Max. Verweilzeit :</translation>
    </message>
    <message>
        <source>infinite</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>Enable Configset</source>
        <translation>Konfigurationssatz verwenden</translation>
    </message>
</context>
<context>
    <name>TKE::IPCParam</name>
    <message>
        <source>Classifier HF Configuration</source>
        <translation>Klassifikator HF einstellen</translation>
    </message>
    <message>
        <source>Classifier VUHF Configuration</source>
        <translation>Klassifikator VUHF einstellen</translation>
    </message>
    <message>
        <source>Classifier DDC Configuration</source>
        <translation>Klassifikator DDC einstellen</translation>
    </message>
    <message>
        <source>Data Transmission HF Configuration</source>
        <translation>Datenübertragung HF einstellen</translation>
    </message>
    <message>
        <source>Data Transmission VUHF Configuration</source>
        <translation>Datenübertragung VUHF einstellen</translation>
    </message>
    <message>
        <source>Data Transmission DDC Configuration</source>
        <translation>Datenübertragung DDC einstellen</translation>
    </message>
    <message>
        <source>Detection Conventional Configuration</source>
        <translation>Konventionelle Detektion einstellen</translation>
    </message>
    <message>
        <source>Detection Shorttime Configuration</source>
        <translation>Kurzzeitdetektion einstellen</translation>
    </message>
    <message>
        <source>Receiver Configuration</source>
        <translation>Empfänger einstellen</translation>
    </message>
    <message>
        <source>Exciter Configuration</source>
        <translation>Erreger einstellen</translation>
    </message>
    <message>
        <source>JobEdit Online</source>
        <translation>Auftragseditor online</translation>
    </message>
    <message>
        <source>Exiter General Configuration</source>
        <translation>Erreger allgemein einstellen</translation>
    </message>
    <message>
        <source>Surveillance Memory Scan VUHF Configuration</source>
        <translation>Überwachung Speichersuchlauf VUHF einstellen</translation>
    </message>
    <message>
        <source>Surveillance Memory Scan HF Configuration</source>
        <translation>Überwachung Speichersuchlauf HF einstellen</translation>
    </message>
    <message>
        <source>Memory Scan Configuration</source>
        <translation>Speichersuchlauf einstellen</translation>
    </message>
    <message>
        <source>Rasterdetector Configuration</source>
        <translation>Rasterdetektor einstellen</translation>
    </message>
    <message>
        <source>SingleChannelDetector Configuration</source>
        <translation>Einzelkanaldetektor einstellen</translation>
    </message>
    <message>
        <source>Spectral Zoom Configuration</source>
        <translation>Spektrale Lupe einstellen</translation>
    </message>
    <message>
        <source>External Receiver Header Configuration</source>
        <translation>Kopf des externen Empfängers einstellen</translation>
    </message>
    <message>
        <source>Classifier DDC Header Configuration</source>
        <translation>Kopf des Klassifikators DDC einstellen</translation>
    </message>
    <message>
        <source>Voice DDC Header Configuration</source>
        <translation>Kopf Sprache DDC einstellen</translation>
    </message>
    <message>
        <source>Header Configuration</source>
        <translation>Kopf einstellen</translation>
    </message>
    <message>
        <source>Header MS Configuration</source>
        <translation>Kopf MS einstellen</translation>
    </message>
    <message>
        <source>Tuner Configuration</source>
        <translation>Tuner einstellen</translation>
    </message>
    <message>
        <source>Header WB Configuration</source>
        <translation>Kopf WB einstellen</translation>
    </message>
    <message>
        <source>External Tuner</source>
        <translation>Externer Tuner</translation>
    </message>
    <message>
        <source>Tuner HF Configuration</source>
        <translation>Tuner HF einstellen</translation>
    </message>
    <message>
        <source>Tuner VUHF Configuration</source>
        <translation>Tuner VUHF einstellen</translation>
    </message>
    <message>
        <source>Voice DDC Configuration</source>
        <translation>Sprache DDC einstellen</translation>
    </message>
    <message>
        <source>Voice HF Configuration</source>
        <translation>Sprache HF einstellen</translation>
    </message>
    <message>
        <source>Voice VUHF Configuration</source>
        <translation>Sprache VUHF einstellen</translation>
    </message>
    <message>
        <source>Tuner WB Configuration</source>
        <translation>Tuner WB einstellen</translation>
    </message>
    <message>
        <source>Simulation Configuration</source>
        <translation>Simulation einstellen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>WB General</source>
        <translation>WB allgemein</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>AutoRecording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>WB Tuner</source>
        <translation>WB-Tuner</translation>
    </message>
    <message>
        <source>WB FFT Data</source>
        <translation>WB-FFT-Daten</translation>
    </message>
    <message>
        <source>FFT Data</source>
        <translation>FFT-Daten</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>VUHF Tuner</source>
        <translation>VUHF-Tuner</translation>
    </message>
    <message>
        <source>SMU</source>
        <translation>SMU</translation>
    </message>
    <message>
        <source>SCU</source>
        <translation>SCU</translation>
    </message>
    <message>
        <source>WDE</source>
        <translation>WDE</translation>
    </message>
    <message>
        <source>ScanSettings</source>
        <translation>Suchlaufeinstellungen</translation>
    </message>
    <message>
        <source>Receiver Tuner</source>
        <translation>Empfängertuner</translation>
    </message>
    <message>
        <source>Demodulator</source>
        <translation>Demodulator</translation>
    </message>
    <message>
        <source>Decoder</source>
        <translation>Decoder</translation>
    </message>
    <message>
        <source>Correlator</source>
        <translation>Korrelator</translation>
    </message>
    <message>
        <source>Classifier</source>
        <translation>Klassifikator</translation>
    </message>
    <message>
        <source>Alarm Conditions</source>
        <translation>Alarmbedingungen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Rasterdetector</source>
        <translation>Rasterdetektor</translation>
    </message>
    <message>
        <source>Singlechanneldetector</source>
        <translation>Einzelkanaldetektor</translation>
    </message>
    <message>
        <source>Exciter</source>
        <translation>Erreger</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Detection</source>
        <translation>Detektion</translation>
    </message>
    <message>
        <source>DFLocate</source>
        <translation>Peilen/Orten</translation>
    </message>
    <message>
        <source>Activity Generation</source>
        <translation>Aktivitätserzeugung</translation>
    </message>
</context>
<context>
    <name>TKE::IniCfg</name>
    <message>
        <source>not a well-formed INI file</source>
        <translation>keine wohlgeformte INI-Datei</translation>
    </message>
</context>
<context>
    <name>TKE::JobDlg</name>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Beschreibung :</translation>
    </message>
    <message>
        <source>Author :</source>
        <translation>Verfasser :</translation>
    </message>
    <message>
        <source>Date of creation :</source>
        <translation>Angelegt am :</translation>
    </message>
    <message>
        <source>Last modification :</source>
        <translation>Zuletzt geändert :</translation>
    </message>
    <message>
        <source>Priority :</source>
        <translation>Priorität :</translation>
    </message>
    <message>
        <source>State :</source>
        <translation>Zustand :</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>HF reception</source>
        <translation>HF-Empfang</translation>
    </message>
    <message>
        <source>V/UHF reception</source>
        <translation>V/UHF-Empfang</translation>
    </message>
    <message>
        <source>HF wideband</source>
        <translation>HF-Breitband</translation>
    </message>
    <message>
        <source>V/UHF wideband</source>
        <translation>V/UHF-Breitband</translation>
    </message>
    <message>
        <source>DDC channels</source>
        <translation>DDC-Kanäle</translation>
    </message>
    <message>
        <source>Direction finding</source>
        <translation>Peilung</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ortung</translation>
    </message>
    <message>
        <source>External decoder</source>
        <translation>Externer Decoder</translation>
    </message>
    <message>
        <source>Exciter</source>
        <translation>Erreger</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Number of receivers :</source>
        <translation>Anzahl der Empfänger :</translation>
    </message>
    <message>
        <source>Automatic workflow</source>
        <translation>Automatischer Arbeitsablauf</translation>
    </message>
    <message>
        <source>Workflow :</source>
        <translation>Arbeitsablauf :</translation>
    </message>
    <message>
        <source>Automatic classification</source>
        <translation>Automatische Klassifikation</translation>
    </message>
    <message>
        <source>Automatic recording</source>
        <translation>Automatische Aufzeichnung</translation>
    </message>
    <message>
        <source>Store results</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>Keep results for :</source>
        <translation>Ergebnisse aufbewahren für :</translation>
    </message>
    <message>
        <source>d</source>
        <translation>d</translation>
    </message>
</context>
<context>
    <name>TKE::JobFile</name>
    <message>
        <source>This is a directory</source>
        <translation>Das ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>The job has no file yet</source>
        <translation>Der Auftrag hat noch keine Datei</translation>
    </message>
    <message>
        <source>The previous generation cannot be kept: %1</source>
        <translation>Die vorige Fassung kann nicht aufgehoben werden: %1</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1 (Prozess %2 auf %3)</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>This is no file but a pipe or a device</source>
        <translation>Dies ist keine Datei, sondern eine Pipe oder ein Gerät</translation>
    </message>
    <message>
        <source>There is something that is no file</source>
        <translation>Dort ist etwas, das keine Datei ist</translation>
    </message>
</context>
<context>
    <name>TKE::JobModelReader</name>
    <message>
        <source>The directory holds no descriptor file</source>
        <translation>Das Verzeichnis enthält keine Beschreibungsdatei</translation>
    </message>
    <message>
        <source>There is no such directory</source>
        <translation>Dieses Verzeichnis gibt es nicht</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not possible</source>
        <translation>%1: „%2“ ist nicht möglich</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>Unknown element &quot;%1&quot;</source>
        <translation>Unbekanntes Element „%1“</translation>
    </message>
    <message>
        <source>The file holds no group</source>
        <translation>Die Datei enthält keine Gruppe</translation>
    </message>
    <message>
        <source>The group is described twice</source>
        <translation>Die Gruppe ist zweimal beschrieben</translation>
    </message>
    <message>
        <source>The parameter is described twice</source>
        <translation>Der Parameter ist zweimal beschrieben</translation>
    </message>
    <message>
        <source>The default is refused: %1</source>
        <translation>Die Vorgabe wird abgelehnt: %1</translation>
    </message>
    <message>
        <source>The key %1 occurs twice</source>
        <translation>Der Schlüssel %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>A rule names &quot;%1&quot;, which is no parameter of the group</source>
        <translation>Eine Regel nennt „%1“, das kein Parameter der Gruppe ist</translation>
    </message>
    <message>
        <source>Missing parameters: %1</source>
        <translation>Fehlende Parameter: %1</translation>
    </message>
</context>
<context>
    <name>TKE::JobReader</name>
    <message>
        <source>Text outside of any value</source>
        <translation>Text außerhalb eines Werts</translation>
    </message>
    <message>
        <source>The text is longer than %1 bytes</source>
        <translation>Der Text ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>This is no job file: its root element is &quot;%1&quot;</source>
        <translation>Das ist keine Auftragsdatei: Ihr Wurzelelement ist „%1“</translation>
    </message>
    <message>
        <source>The version is missing</source>
        <translation>Die Version fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no version</source>
        <translation>„%1“ ist keine Version</translation>
    </message>
    <message>
        <source>The file has version %1; what version 1 does not know is kept as it stands</source>
        <translation>Die Datei hat Version %1; was Version 1 nicht kennt, bleibt unverändert</translation>
    </message>
    <message>
        <source>Unknown element &quot;%1&quot;</source>
        <translation>Unbekanntes Element „%1“</translation>
    </message>
    <message>
        <source>The type of the node is missing</source>
        <translation>Der Typ des Knotens fehlt</translation>
    </message>
    <message>
        <source>The node occurs twice</source>
        <translation>Der Knoten kommt zweimal vor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count of channels (1 to %2)</source>
        <translation>„%1“ ist keine Kanalzahl (1 bis %2)</translation>
    </message>
    <message>
        <source>The form &quot;%1&quot; is unknown</source>
        <translation>Die Form „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>The band &quot;%1&quot; is unknown</source>
        <translation>Der Bereich „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; is unknown</source>
        <translation>Die Gruppe „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>The name of the value is missing</source>
        <translation>Der Name des Werts fehlt</translation>
    </message>
    <message>
        <source>No group of the node has this value</source>
        <translation>Keine Gruppe des Knotens hat diesen Wert</translation>
    </message>
    <message>
        <source>The value occurs twice</source>
        <translation>Der Wert kommt zweimal vor</translation>
    </message>
    <message>
        <source>The job has more than %1 values</source>
        <translation>Der Auftrag hat mehr als %1 Werte</translation>
    </message>
</context>
<context>
    <name>TKE::JobStructure</name>
    <message>
        <source>The job holds no node &quot;%1&quot;</source>
        <translation>Der Auftrag hat keinen Knoten „%1“</translation>
    </message>
    <message>
        <source>The node occurs twice</source>
        <translation>Der Knoten kommt zweimal vor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count of channels (1 to %2)</source>
        <translation>„%1“ ist keine Kanalzahl (1 bis %2)</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; is unknown</source>
        <translation>Die Gruppe „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>Below &quot;%1&quot; lies another node that is no part of it</source>
        <translation>Unter „%1“ liegt ein anderer Knoten, der nicht dazu gehört</translation>
    </message>
    <message>
        <source>There is a node &quot;%1&quot; already</source>
        <translation>Es gibt schon einen Knoten „%1“</translation>
    </message>
</context>
<context>
    <name>TKE::MemoryScanDlg</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Frequency [kHz]</source>
        <translation>Frequenz [kHz]</translation>
    </message>
    <message>
        <source>IF bandwidth</source>
        <translation>ZF-Bandbreite</translation>
    </message>
    <message>
        <source>Demodulation</source>
        <translation>Demodulation</translation>
    </message>
    <message>
        <source>Threshold [dBµV]</source>
        <translation>Schwelle [dBµV]</translation>
    </message>
    <message>
        <source>AFC</source>
        <translation>AFC</translation>
    </message>
    <message>
        <source>Frequency [MHz]</source>
        <translation>Frequenz [MHz]</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Scan dwelltime :</source>
        <translation>Verweilzeit im Suchlauf :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>infinite</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>Hold time :</source>
        <translation>Haltezeit :</translation>
    </message>
    <message>
        <source>Direction :</source>
        <translation>Richtung :</translation>
    </message>
    <message>
        <source>Cycles :</source>
        <translation>Durchläufe :</translation>
    </message>
    <message>
        <source>Start with the job</source>
        <translation>Mit dem Auftrag starten</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Attenuation mode :</source>
        <translation>Dämpfungsart :</translation>
    </message>
    <message>
        <source>Attenuation value :</source>
        <translation>Dämpfungswert :</translation>
    </message>
    <message>
        <source>Preamplifier On/Off</source>
        <translation>Vorverstärker ein/aus</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
</context>
<context>
    <name>TKE::NodeSpec</name>
    <message>
        <source>The name of the node is missing</source>
        <translation>Der Name des Knotens fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a node</source>
        <translation>„%1“ ist kein Name für einen Knoten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than one name, which only a top node may have</source>
        <translation>„%1“ ist mehr als ein Name; das darf nur ein oberster Knoten haben</translation>
    </message>
</context>
<context>
    <name>TKE::NumericValue</name>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>%1 is less than %2</source>
        <translation>%1 ist kleiner als %2</translation>
    </message>
    <message>
        <source>%1 is more than %2</source>
        <translation>%1 ist größer als %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large</source>
        <translation>„%1“ ist zu groß</translation>
    </message>
</context>
<context>
    <name>TKE::ParameterDlg</name>
    <message>
        <source> [kHz]</source>
        <translation> [kHz]</translation>
    </message>
    <message>
        <source> [MHz]</source>
        <translation> [MHz]</translation>
    </message>
</context>
<context>
    <name>TKE::ResourceDlg</name>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Name :</translation>
    </message>
    <message>
        <source>Type :</source>
        <translation>Art :</translation>
    </message>
    <message>
        <source>Site :</source>
        <translation>Standort :</translation>
    </message>
    <message>
        <source>Number :</source>
        <translation>Anzahl :</translation>
    </message>
    <message>
        <source>Exclusive use</source>
        <translation>Alleinige Nutzung</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Demodulator</source>
        <translation>Demodulator</translation>
    </message>
    <message>
        <source>Decoder</source>
        <translation>Decoder</translation>
    </message>
    <message>
        <source>Classifier</source>
        <translation>Klassifikator</translation>
    </message>
    <message>
        <source>DDC channels :</source>
        <translation>DDC-Kanäle :</translation>
    </message>
    <message>
        <source>Signal detection</source>
        <translation>Signaldetektion</translation>
    </message>
    <message>
        <source>Short-time detection</source>
        <translation>Kurzzeitdetektion</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ortung</translation>
    </message>
    <message>
        <source>Single station location</source>
        <translation>Ortung von einer Station aus</translation>
    </message>
    <message>
        <source>Decoder channels :</source>
        <translation>Decoderkanäle :</translation>
    </message>
    <message>
        <source>Wide-band exciter</source>
        <translation>Breitbanderreger</translation>
    </message>
    <message>
        <source>Storage limit :</source>
        <translation>Speichergrenze :</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>Licence options</source>
        <translation>Lizenzoptionen</translation>
    </message>
    <message>
        <source>Valid until :</source>
        <translation>Gültig bis :</translation>
    </message>
    <message>
        <source>Release licence when the job pauses</source>
        <translation>Lizenz freigeben, wenn der Auftrag ruht</translation>
    </message>
</context>
<context>
    <name>TKE::ScanDlg</name>
    <message>
        <source>Scan On/Off</source>
        <translation>Suchlauf ein/aus</translation>
    </message>
    <message>
        <source>Scan type</source>
        <translation>Art des Suchlaufs</translation>
    </message>
    <message>
        <source>Frequency range</source>
        <translation>Frequenzbereich</translation>
    </message>
    <message>
        <source>Start frequency :</source>
        <translation>Startfrequenz :</translation>
    </message>
    <message>
        <source>Stop frequency :</source>
        <translation>Stoppfrequenz :</translation>
    </message>
    <message>
        <source>Step width :</source>
        <translation>Schrittweite :</translation>
    </message>
    <message>
        <source>Memory channels</source>
        <translation>Speicherkanäle</translation>
    </message>
    <message>
        <source>First channel :</source>
        <translation>Erster Kanal :</translation>
    </message>
    <message>
        <source>Last channel :</source>
        <translation>Letzter Kanal :</translation>
    </message>
    <message>
        <source>Skip locked-out channels</source>
        <translation>Gesperrte Kanäle überspringen</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>Dwell time :</source>
        <translation>Verweilzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>infinite</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>Hold time :</source>
        <translation>Haltezeit :</translation>
    </message>
    <message>
        <source>Threshold :</source>
        <translation>Schwelle :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Direction :</source>
        <translation>Richtung :</translation>
    </message>
    <message>
        <source>Cycles :</source>
        <translation>Durchläufe :</translation>
    </message>
    <message>
        <source>Frequency list (MHz)</source>
        <translation>Frequenzliste (MHz)</translation>
    </message>
    <message>
        <source>Frequency list (kHz)</source>
        <translation>Frequenzliste (kHz)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Excluded ranges (MHz)</source>
        <translation>Ausgeschlossene Bereiche (MHz)</translation>
    </message>
    <message>
        <source>Excluded ranges (kHz)</source>
        <translation>Ausgeschlossene Bereiche (kHz)</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
</context>
<context>
    <name>TKE::ShorttimeProfileDlg</name>
    <message>
        <source>Date of creation :</source>
        <translation>Angelegt am :</translation>
    </message>
    <message>
        <source>Last modification :</source>
        <translation>Zuletzt geändert :</translation>
    </message>
    <message>
        <source>Creating operator :</source>
        <translation>Angelegt von :</translation>
    </message>
    <message>
        <source>Modifying operator :</source>
        <translation>Geändert von :</translation>
    </message>
    <message>
        <source>Required Parameters</source>
        <translation>Geforderte Parameter</translation>
    </message>
    <message>
        <source>Burst Length Min.</source>
        <translation>Burstlänge min.</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Burst Length Max.</source>
        <translation>Burstlänge max.</translation>
    </message>
    <message>
        <source>Hop Rate</source>
        <translation>Sprungrate</translation>
    </message>
    <message>
        <source>Burst Count Min.</source>
        <translation>Burstanzahl min.</translation>
    </message>
    <message>
        <source>Minimum bandwidth</source>
        <translation>Kleinste Bandbreite</translation>
    </message>
    <message>
        <source>Nominal bandwidth</source>
        <translation>Nennbandbreite</translation>
    </message>
    <message>
        <source>Maximum bandwidth</source>
        <translation>Größte Bandbreite</translation>
    </message>
    <message>
        <source>Use the frequency limits</source>
        <translation>Frequenzgrenzen verwenden</translation>
    </message>
    <message>
        <source>Min frequency :</source>
        <translation>Min. Frequenz :</translation>
    </message>
    <message>
        <source>Chs. :</source>
        <translation>Kan. :</translation>
    </message>
    <message>
        <source>Max frequency :</source>
        <translation>Max. Frequenz :</translation>
    </message>
    <message>
        <source>Use the hop step</source>
        <translation>Sprungweite verwenden</translation>
    </message>
    <message>
        <source>Max hopstep :</source>
        <translation>Max. Sprungweite :</translation>
    </message>
    <message>
        <source>Modulation type :</source>
        <translation>Modulationsart :</translation>
    </message>
    <message>
        <source>Use the frequency list</source>
        <translation>Frequenzliste verwenden</translation>
    </message>
    <message>
        <source>Freq. list [kHz] :</source>
        <translation>Freq.-Liste [kHz] :</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
</context>
<context>
    <name>TKE::ShorttimeProfileHeaderDlg</name>
    <message>
        <source>Matching accuracy :</source>
        <translation>Übereinstimmung :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>TKE::SigTrackingControlDlg</name>
    <message>
        <source>Frequency range :</source>
        <translation>Frequenzbereich :</translation>
    </message>
</context>
<context>
    <name>TKE::SpectralZoomDlg</name>
    <message>
        <source>Lock frequency</source>
        <translation>Frequenz sperren</translation>
    </message>
</context>
<context>
    <name>TKE::SuffixedDouble</name>
    <message>
        <source>&quot;%1&quot; is no unit of frequency (Hz, kHz, MHz, GHz)</source>
        <translation>„%1“ ist keine Frequenzeinheit (Hz, kHz, MHz, GHz)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number of Hz</source>
        <translation>„%1“ sind keine ganzen Hz</translation>
    </message>
</context>
<context>
    <name>TKE::SurveillanceDlg</name>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Alarm On/Off</source>
        <translation>Alarm ein/aus</translation>
    </message>
    <message>
        <source>Priority :</source>
        <translation>Priorität :</translation>
    </message>
    <message>
        <source>Reappearance Time :</source>
        <translation>Wiederkehrzeit :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Actions :</source>
        <translation>Aktionen :</translation>
    </message>
    <message>
        <source>Level above</source>
        <translation>Pegel über</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Signal longer than</source>
        <translation>Signal länger als</translation>
    </message>
    <message>
        <source>Signal absent for</source>
        <translation>Kein Signal seit</translation>
    </message>
    <message>
        <source>Frequency deviation above</source>
        <translation>Frequenzabweichung über</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Modulation type</source>
        <translation>Modulationsart</translation>
    </message>
    <message>
        <source>Decoded text contains</source>
        <translation>Decodierter Text enthält</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß/klein beachten</translation>
    </message>
    <message>
        <source>Surveyed ranges (kHz)</source>
        <translation>Überwachte Bereiche (kHz)</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
    <message>
        <source>Bandwidth (kHz)</source>
        <translation>Bandbreite (kHz)</translation>
    </message>
    <message>
        <source>Use bandwidth</source>
        <translation>Bandbreite beachten</translation>
    </message>
    <message>
        <source>Min :</source>
        <translation>Min :</translation>
    </message>
    <message>
        <source>Max :</source>
        <translation>Max :</translation>
    </message>
    <message>
        <source>Time period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Date period</source>
        <translation>Datumsbereich</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Wochentage</translation>
    </message>
</context>
<context>
    <name>TKE::TdsHeaderDDCDlg</name>
    <message>
        <source>Lock frequency</source>
        <translation>Frequenz sperren</translation>
    </message>
    <message>
        <source>Delayed signal modes</source>
        <translation>Verzögerte Signalarten</translation>
    </message>
</context>
<context>
    <name>TKE::TdsHeaderMSDlg</name>
    <message>
        <source>Channels :</source>
        <translation>Kanäle :</translation>
    </message>
</context>
<context>
    <name>TKE::TdsHeaderWBDlg</name>
    <message>
        <source>Gain control :</source>
        <translation>Verstärkungsregelung :</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>Ext.</source>
        <translation>Ext.</translation>
    </message>
    <message>
        <source>Chs. :</source>
        <translation>Kan. :</translation>
    </message>
    <message>
        <source>Delay :</source>
        <translation>Verzögerung :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Reference frequency :</source>
        <translation>Referenzfrequenz :</translation>
    </message>
    <message>
        <source>RF mute</source>
        <translation>HF stumm</translation>
    </message>
    <message>
        <source>Improved dynamic behaviour at 1 MHz</source>
        <translation>Verbesserte Dynamik bei 1 MHz</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Attack time :</source>
        <translation>Anstiegszeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Hold time :</source>
        <translation>Haltezeit :</translation>
    </message>
    <message>
        <source>Decay time :</source>
        <translation>Abfallzeit :</translation>
    </message>
    <message>
        <source>Hysteresis :</source>
        <translation>Hysterese :</translation>
    </message>
    <message>
        <source>Step dwelltime :</source>
        <translation>Verweilzeit je Schritt :</translation>
    </message>
    <message>
        <source>infinite</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>Scan dwelltime :</source>
        <translation>Verweilzeit im Suchlauf :</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Scan tuner mode :</source>
        <translation>Tunerart im Suchlauf :</translation>
    </message>
</context>
<context>
    <name>TKE::TunerDDCDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>Decay :</source>
        <translation>Abfall :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>DDC bandwidth :</source>
        <translation>DDC-Bandbreite :</translation>
    </message>
    <message>
        <source>Notch filter</source>
        <translation>Kerbfilter</translation>
    </message>
    <message>
        <source>Frequency offset :</source>
        <translation>Frequenzablage :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Demodulation :</source>
        <translation>Demodulation :</translation>
    </message>
    <message>
        <source>Bandwidth :</source>
        <translation>Bandbreite :</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>Noise suppression</source>
        <translation>Rauschunterdrückung</translation>
    </message>
    <message>
        <source>IF shift :</source>
        <translation>ZF-Versatz :</translation>
    </message>
    <message>
        <source>AFC</source>
        <translation>AFC</translation>
    </message>
    <message>
        <source>BFO frequency :</source>
        <translation>BFO-Frequenz :</translation>
    </message>
    <message>
        <source>Squelch :</source>
        <translation>Rauschsperre :</translation>
    </message>
    <message>
        <source>Volume :</source>
        <translation>Lautstärke :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Squelch Threshold :</source>
        <translation>Rauschsperrschwelle :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Audio format :</source>
        <translation>Audioformat :</translation>
    </message>
    <message>
        <source>Audio balance :</source>
        <translation>Audiobalance :</translation>
    </message>
    <message>
        <source>Alarm threshold :</source>
        <translation>Alarmschwelle :</translation>
    </message>
    <message>
        <source>Hold frequency on alarm</source>
        <translation>Frequenz bei Alarm halten</translation>
    </message>
    <message>
        <source>Second channel</source>
        <translation>Zweiter Kanal</translation>
    </message>
</context>
<context>
    <name>TKE::TunerDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>Decay :</source>
        <translation>Abfall :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>IFSource :</source>
        <translation>ZF-Quelle :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Preamplifier On/Off</source>
        <translation>Vorverstärker ein/aus</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>Demodulation :</source>
        <translation>Demodulation :</translation>
    </message>
    <message>
        <source>Output IF path :</source>
        <translation>ZF-Ausgangspfad :</translation>
    </message>
    <message>
        <source>IF shift :</source>
        <translation>ZF-Versatz :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>BFO frequency :</source>
        <translation>BFO-Frequenz :</translation>
    </message>
    <message>
        <source>Notch filter 1</source>
        <translation>Kerbfilter 1</translation>
    </message>
    <message>
        <source>Frequency offset :</source>
        <translation>Frequenzablage :</translation>
    </message>
    <message>
        <source>Bandwidth :</source>
        <translation>Bandbreite :</translation>
    </message>
    <message>
        <source>Notch filter 2</source>
        <translation>Kerbfilter 2</translation>
    </message>
    <message>
        <source>Squelch :</source>
        <translation>Rauschsperre :</translation>
    </message>
    <message>
        <source>Volume :</source>
        <translation>Lautstärke :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Squelch Threshold :</source>
        <translation>Rauschsperrschwelle :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Audio format :</source>
        <translation>Audioformat :</translation>
    </message>
    <message>
        <source>Syllabic :</source>
        <translation>Silbenrate :</translation>
    </message>
    <message>
        <source>Wideband mode</source>
        <translation>Breitbandbetrieb</translation>
    </message>
    <message>
        <source>Noise suppression</source>
        <translation>Rauschunterdrückung</translation>
    </message>
    <message>
        <source>Replay freq. offset :</source>
        <translation>Freq.-Ablage bei Wiedergabe :</translation>
    </message>
</context>
<context>
    <name>TKE::TunerExternalDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>Receiver :</source>
        <translation>Empfänger :</translation>
    </message>
    <message>
        <source>Control :</source>
        <translation>Steuerung :</translation>
    </message>
    <message>
        <source>Settling time :</source>
        <translation>Einschwingzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Set frequency at job start</source>
        <translation>Frequenz beim Start des Auftrags setzen</translation>
    </message>
    <message>
        <source>Remark :</source>
        <translation>Bemerkung :</translation>
    </message>
    <message>
        <source>Signal input :</source>
        <translation>Signaleingang :</translation>
    </message>
    <message>
        <source>IF frequency :</source>
        <translation>ZF-Frequenz :</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>Inverted IF spectrum</source>
        <translation>Invertiertes ZF-Spektrum</translation>
    </message>
    <message>
        <source>Level offset :</source>
        <translation>Pegelversatz :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Demodulation :</source>
        <translation>Demodulation :</translation>
    </message>
    <message>
        <source>Signal input channel 2 :</source>
        <translation>Signaleingang Kanal 2 :</translation>
    </message>
</context>
<context>
    <name>TKE::TunerVUHFDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>AFC</source>
        <translation>AFC</translation>
    </message>
    <message>
        <source>Demodulation :</source>
        <translation>Demodulation :</translation>
    </message>
    <message>
        <source>Measurement mode :</source>
        <translation>Messart :</translation>
    </message>
    <message>
        <source>Measurement time :</source>
        <translation>Messzeit :</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Squelch Threshold</source>
        <translation>Rauschsperrschwelle</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Attenuation mode :</source>
        <translation>Dämpfungsart :</translation>
    </message>
    <message>
        <source>Attenuation value :</source>
        <translation>Dämpfungswert :</translation>
    </message>
    <message>
        <source>Volume :</source>
        <translation>Lautstärke :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Audio balance :</source>
        <translation>Audiobalance :</translation>
    </message>
    <message>
        <source>Audio format :</source>
        <translation>Audioformat :</translation>
    </message>
    <message>
        <source>Analog audio offset :</source>
        <translation>Ablage des Analogtons :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Amplifier mode :</source>
        <translation>Verstärkerart :</translation>
    </message>
    <message>
        <source>Reference frequency :</source>
        <translation>Referenzfrequenz :</translation>
    </message>
</context>
<context>
    <name>TKE::TunerWBDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>Bandwidth :</source>
        <translation>Bandbreite :</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>Preselection :</source>
        <translation>Vorselektion :</translation>
    </message>
    <message>
        <source>Reference frequency :</source>
        <translation>Referenzfrequenz :</translation>
    </message>
    <message>
        <source>Gain control :</source>
        <translation>Verstärkungsregelung :</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Decay time :</source>
        <translation>Abfallzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Attenuation mode :</source>
        <translation>Dämpfungsart :</translation>
    </message>
    <message>
        <source>Attenuation value :</source>
        <translation>Dämpfungswert :</translation>
    </message>
    <message>
        <source>Amplifier mode :</source>
        <translation>Verstärkerart :</translation>
    </message>
    <message>
        <source>Attenuation :</source>
        <translation>Dämpfung :</translation>
    </message>
    <message>
        <source>Preamplifier On/Off</source>
        <translation>Vorverstärker ein/aus</translation>
    </message>
    <message>
        <source>Second channel</source>
        <translation>Zweiter Kanal</translation>
    </message>
</context>
<context>
    <name>TKE::TunerWBRXDlg</name>
    <message>
        <source>Frequency :</source>
        <translation>Frequenz :</translation>
    </message>
    <message>
        <source>Span :</source>
        <translation>Frequenzspanne :</translation>
    </message>
    <message>
        <source>IF bandwidth :</source>
        <translation>ZF-Bandbreite :</translation>
    </message>
    <message>
        <source>Demodulation :</source>
        <translation>Demodulation :</translation>
    </message>
    <message>
        <source>Antenna :</source>
        <translation>Antenne :</translation>
    </message>
    <message>
        <source>Gain :</source>
        <translation>Verstärkung :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Attenuation mode :</source>
        <translation>Dämpfungsart :</translation>
    </message>
    <message>
        <source>Attenuation value :</source>
        <translation>Dämpfungswert :</translation>
    </message>
    <message>
        <source>Amplifier mode :</source>
        <translation>Verstärkerart :</translation>
    </message>
    <message>
        <source>Preamplifier On/Off</source>
        <translation>Vorverstärker ein/aus</translation>
    </message>
    <message>
        <source>Reference frequency :</source>
        <translation>Referenzfrequenz :</translation>
    </message>
    <message>
        <source>Measurement mode :</source>
        <translation>Messart :</translation>
    </message>
    <message>
        <source>Measurement time :</source>
        <translation>Messzeit :</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Squelch Threshold</source>
        <translation>Rauschsperrschwelle</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Volume :</source>
        <translation>Lautstärke :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>TKE::VCDatePeriod</name>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>to:</source>
        <translation>bis:</translation>
    </message>
</context>
<context>
    <name>TKE::VCDateTimeEdit</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>TKE::VCFrequency</name>
    <message>
        <source>Tune</source>
        <translation>Abstimmen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>TKE::VCLineEdit</name>
    <message>
        <source>&quot;%1&quot; is not a date and time (dd.mm.yyyy hh:mm:ss)</source>
        <translation>„%1“ ist kein Zeitpunkt (TT.MM.JJJJ hh:mm:ss)</translation>
    </message>
</context>
<context>
    <name>TKE::VCListBoxNumeric</name>
    <message>
        <source>&amp;New row</source>
        <translation>&amp;Neue Zeile</translation>
    </message>
    <message>
        <source>&amp;Delete row</source>
        <translation>Zeile &amp;löschen</translation>
    </message>
    <message>
        <source>Not taken over:</source>
        <translation>Nicht übernommen:</translation>
    </message>
</context>
<context>
    <name>TKE::VCListBoxString</name>
    <message>
        <source>Set to &amp;Default</source>
        <translation>Auf &amp;Vorgabe setzen</translation>
    </message>
</context>
<context>
    <name>TKE::VCTimePeriod</name>
    <message>
        <source>Start time:</source>
        <translation>Startzeit:</translation>
    </message>
    <message>
        <source>Stop time:</source>
        <translation>Stoppzeit:</translation>
    </message>
</context>
<context>
    <name>TKE::ValueDescriptor</name>
    <message>
        <source>Not a number</source>
        <translation>Keine Zahl</translation>
    </message>
    <message>
        <source>%1 is less than %2</source>
        <translation>%1 ist kleiner als %2</translation>
    </message>
    <message>
        <source>%1 is more than %2</source>
        <translation>%1 ist größer als %2</translation>
    </message>
</context>
<context>
    <name>TKE::ValueSelection</name>
    <message>
        <source>There is no item &quot;%1&quot;</source>
        <translation>Es gibt keinen Eintrag „%1“</translation>
    </message>
</context>
<context>
    <name>TKE::WBRXScanDlg</name>
    <message>
        <source>Scan On/Off</source>
        <translation>Suchlauf ein/aus</translation>
    </message>
    <message>
        <source>Scan mode :</source>
        <translation>Suchlaufart :</translation>
    </message>
    <message>
        <source>Resolution bandwidth :</source>
        <translation>Auflösebandbreite :</translation>
    </message>
    <message>
        <source>Step width :</source>
        <translation>Schrittweite :</translation>
    </message>
    <message>
        <source>Detector :</source>
        <translation>Detektor :</translation>
    </message>
    <message>
        <source>Measurement time :</source>
        <translation>Messzeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Threshold mode :</source>
        <translation>Art der Schwelle :</translation>
    </message>
    <message>
        <source>Threshold absolute :</source>
        <translation>Schwelle absolut :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Threshold relative :</source>
        <translation>Schwelle relativ :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Dwell time :</source>
        <translation>Verweilzeit :</translation>
    </message>
    <message>
        <source>infinite</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>Hold time :</source>
        <translation>Haltezeit :</translation>
    </message>
    <message>
        <source>Revisit time :</source>
        <translation>Wiederkehr nach :</translation>
    </message>
    <message>
        <source>Occupancy</source>
        <translation>Belegung</translation>
    </message>
    <message>
        <source>Occupancy statistics</source>
        <translation>Belegungsstatistik</translation>
    </message>
    <message>
        <source>Integration time :</source>
        <translation>Integrationszeit :</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
    <message>
        <source>Scan ranges (MHz)</source>
        <translation>Suchbereiche (MHz)</translation>
    </message>
    <message>
        <source>Scan ranges (kHz)</source>
        <translation>Suchbereiche (kHz)</translation>
    </message>
    <message>
        <source>Excluded ranges (MHz)</source>
        <translation>Ausgeschlossene Bereiche (MHz)</translation>
    </message>
    <message>
        <source>Excluded ranges (kHz)</source>
        <translation>Ausgeschlossene Bereiche (kHz)</translation>
    </message>
</context>
<context>
    <name>TKE::WDEExciterDlg</name>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Level reference :</source>
        <translation>Pegelbezug :</translation>
    </message>
    <message>
        <source>Burst length :</source>
        <translation>Burstlänge :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Burst pause :</source>
        <translation>Burstpause :</translation>
    </message>
    <message>
        <source>Start time :</source>
        <translation>Startzeit :</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Frequency [kHz] :</source>
        <translation>Frequenz [kHz] :</translation>
    </message>
    <message>
        <source>channel frequency</source>
        <translation>Kanalfrequenz</translation>
    </message>
    <message>
        <source>Level :</source>
        <translation>Pegel :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Modulation :</source>
        <translation>Modulation :</translation>
    </message>
    <message>
        <source>Symbol rate :</source>
        <translation>Symbolrate :</translation>
    </message>
    <message>
        <source>Bd</source>
        <translation>Bd</translation>
    </message>
    <message>
        <source>Shift :</source>
        <translation>Shift :</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Message :</source>
        <translation>Nachricht :</translation>
    </message>
    <message>
        <source>Frequency [MHz] :</source>
        <translation>Frequenz [MHz] :</translation>
    </message>
</context>
<context>
    <name>TKE::WDERasterDetectorDlg</name>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Threshold mode :</source>
        <translation>Art der Schwelle :</translation>
    </message>
    <message>
        <source>Threshold absolute :</source>
        <translation>Schwelle absolut :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Threshold relative :</source>
        <translation>Schwelle relativ :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Integration time :</source>
        <translation>Integrationszeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Min. signal duration :</source>
        <translation>Min. Signaldauer :</translation>
    </message>
    <message>
        <source>Hold time :</source>
        <translation>Haltezeit :</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Start frequency [kHz] :</source>
        <translation>Startfrequenz [kHz] :</translation>
    </message>
    <message>
        <source>start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Stop frequency [kHz] :</source>
        <translation>Stoppfrequenz [kHz] :</translation>
    </message>
    <message>
        <source>stop</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Channel spacing :</source>
        <translation>Kanalabstand :</translation>
    </message>
    <message>
        <source>Channel bandwidth :</source>
        <translation>Kanalbandbreite :</translation>
    </message>
    <message>
        <source>Excluded channels</source>
        <translation>Ausgeschlossene Kanäle</translation>
    </message>
    <message>
        <source>Start frequency [MHz] :</source>
        <translation>Startfrequenz [MHz] :</translation>
    </message>
    <message>
        <source>Stop frequency [MHz] :</source>
        <translation>Stoppfrequenz [MHz] :</translation>
    </message>
</context>
<context>
    <name>TKE::WDESimulationDlg</name>
    <message>
        <source>Emitter</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Duration :</source>
        <translation>Dauer :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Noise level :</source>
        <translation>Rauschpegel :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Fading seed :</source>
        <translation>Startwert des Schwunds :</translation>
    </message>
    <message>
        <source>Start time :</source>
        <translation>Startzeit :</translation>
    </message>
    <message>
        <source>Channel model :</source>
        <translation>Kanalmodell :</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>Schwund</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Frequency [kHz] :</source>
        <translation>Frequenz [kHz] :</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Level :</source>
        <translation>Pegel :</translation>
    </message>
    <message>
        <source>Modulation :</source>
        <translation>Modulation :</translation>
    </message>
    <message>
        <source>Signal-to-noise ratio :</source>
        <translation>Signal-Rausch-Abstand :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>On time :</source>
        <translation>Ein-Zeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Off time :</source>
        <translation>Aus-Zeit :</translation>
    </message>
    <message>
        <source>Bearing :</source>
        <translation>Peilwinkel :</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Frequency [MHz] :</source>
        <translation>Frequenz [MHz] :</translation>
    </message>
</context>
<context>
    <name>TKE::WDESingleChannelDetectorDlg</name>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Integration time :</source>
        <translation>Integrationszeit :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Min. signal duration :</source>
        <translation>Min. Signaldauer :</translation>
    </message>
    <message>
        <source>Hold time :</source>
        <translation>Haltezeit :</translation>
    </message>
    <message>
        <source>Report level changes</source>
        <translation>Pegeländerungen melden</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Frequency [kHz] :</source>
        <translation>Frequenz [kHz] :</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Bandwidth :</source>
        <translation>Bandbreite :</translation>
    </message>
    <message>
        <source>Threshold :</source>
        <translation>Schwelle :</translation>
    </message>
    <message>
        <source>dBµV</source>
        <translation>dBµV</translation>
    </message>
    <message>
        <source>Hysteresis :</source>
        <translation>Hysterese :</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Frequency [MHz] :</source>
        <translation>Frequenz [MHz] :</translation>
    </message>
</context>
<context>
    <name>TKE::WavecomDlg</name>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Workflow :</source>
        <translation>Arbeitsablauf :</translation>
    </message>
    <message>
        <source>Show expert GUI :</source>
        <translation>Expertenansicht zeigen :</translation>
    </message>
    <message>
        <source>Display metadata</source>
        <translation>Metadaten anzeigen</translation>
    </message>
    <message>
        <source>Decoder mode :</source>
        <translation>Decoderbetriebsart :</translation>
    </message>
    <message>
        <source>Decoder mode type:</source>
        <translation>Art der Betriebsart:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Professional modes</source>
        <translation>Professionelle Verfahren</translation>
    </message>
    <message>
        <source>Satellite modes</source>
        <translation>Satellitenverfahren</translation>
    </message>
    <message>
        <source>Classifier</source>
        <translation>Klassifikator</translation>
    </message>
</context>
<context>
    <name>TKE::XmlReader</name>
    <message>
        <source>The encoding %1 is not supported, only UTF-8 is</source>
        <translation>Die Kodierung %1 wird nicht unterstützt, nur UTF-8</translation>
    </message>
    <message>
        <source>A document type is not allowed</source>
        <translation>Ein Dokumenttyp ist nicht erlaubt</translation>
    </message>
    <message>
        <source>Elements are nested more than %1 deep</source>
        <translation>Elemente sind tiefer als %1 geschachtelt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>A tag or comment is longer than %1 bytes</source>
        <translation>Eine Marke oder ein Kommentar ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>Not well-formed: a character is not UTF-8</source>
        <translation>Nicht wohlgeformt: Ein Zeichen ist kein UTF-8</translation>
    </message>
    <message>
        <source>Not well-formed: %1</source>
        <translation>Nicht wohlgeformt: %1</translation>
    </message>
</context>
</TS>
