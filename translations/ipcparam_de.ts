<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
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
    <name>TKE::CfgCenter</name>
    <message>
        <source>The configuration %1 cannot be read.</source>
        <translation>Die Konfiguration %1 kann nicht gelesen werden.</translation>
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
    <name>TKE::IniCfg</name>
    <message>
        <source>not a well-formed INI file</source>
        <translation>keine wohlgeformte INI-Datei</translation>
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
</TS>
