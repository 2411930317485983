#include "editorfixture.h"
#include "jobedit/longwork.h"
#include "valuewidgets/vclabel.h"

using namespace EditorTest;

namespace
{

/// Answers every text with a marked one that is a third longer, as texts of other languages are.
class PseudoTranslator : public QTranslator
{
public:
    QString translate(const char*, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return QChar(u'‹') + text + QString(text.size() * 35 / 100, '~') + QChar(u'›');
    }
    bool isEmpty() const override { return false; }
};

/// What remains of a text without what was translated; its arguments may be translated themselves.
QString Unmarked(QString text)
{
    static const QRegularExpression marked("‹[^‹›]*›");
    for (QString before; before != text;)
    {
        before = text;
        text.remove(marked);
    }
    return text;
}

bool HasWords(const QString& text)
{
    static const QRegularExpression word(R"([A-Za-z]{2})");
    return text.contains(word);
}

/// Whether a text fits into the widget that shows it.
bool Fits(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
    {
        if (label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) // gives way on purpose
            return true;
        return label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                 : label->width() >= label->sizeHint().width();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return group->width() >= group->minimumSizeHint().width();
    return widget.width() >= widget.sizeHint().width();
}

} // namespace

class TestPseudoTranslation : public DeskTest
{
    Q_OBJECT

    PseudoTranslator m_translator;
    std::set<QString> m_exceptions;

    /// Texts that are not translated, and why.
    void CollectExceptions()
    {
        for (const auto& group : Window().Document().ConfiguredModel()->GetGroups())
            for (const auto& parameter : group->GetParameters())
            {
                // The job model is data: whoever writes it chooses its language.
                m_exceptions.merge(std::set<QString>{parameter->GetDescription(), parameter->GetUnit()});
                m_exceptions.insert(parameter->GetValueDescriptor().unit);
                for (const SelectionItem& item : parameter->GetValueDescriptor().items)
                    m_exceptions.insert(item.GetName());
            }
        for (const JobNode& node : Window().Nodes().GetNodes()) // what the job calls its nodes
            m_exceptions.merge(std::set<QString>{node.name, node.path, node.type});
        for (const char* text : {"Hz", "kHz", "MHz", "GHz", "dB", "dBm", "ms", "Bd", // the same in all languages
                                 "English", "Deutsch",                               // each language by its own name
                                 "Use Hoprate for Matching", R"(Bandwidth (Min\Nominal\Max))"}) // fixed texts
            m_exceptions.insert(text);
    }

    void Check(const QString& where, const QString& what, const QString& text)
    {
        static const QRegularExpression tag("<[^<>]*>");
        const QString rest = Unmarked(text).remove('&').remove(tag).trimmed();
        if (HasWords(rest) && !m_exceptions.contains(rest))
            m_faults << "Not translated: " + where + ": " + what + " \"" + text + '"';
    }

    void CheckTexts(const QString& where, const QWidget& widget)
    {
        const QString name = where + ' ' + widget.metaObject()->className() + ' ' + widget.objectName();
        for (const char* property :
             {"text", "title", "toolTip", "statusTip", "whatsThis", "accessibleName", "accessibleDescription",
              "placeholderText", "prefix", "suffix", "specialValueText"})
            // The text of these is a value.
            if (qstrcmp(property, "text") != 0 ||
                !(qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
                  qobject_cast<const VCLabel*>(&widget)))
                Check(name, property, widget.property(property).toString());
        if (const auto* box = qobject_cast<const QComboBox*>(&widget))
            for (int index = 0; index < box->count(); ++index)
                Check(name, "item", box->itemText(index));
        if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
            for (int index = 0; index < tabs->count(); ++index)
                Check(name, "tab", tabs->tabText(index) + tabs->tabToolTip(index));
        if (const auto* header = qobject_cast<const QHeaderView*>(&widget); header && header->model())
            for (int section = 0; section < header->count(); ++section)
                Check(name, "section", header->model()->headerData(section, header->orientation()).toString());
        if (qobject_cast<const QDockWidget*>(&widget) || qobject_cast<const QDialog*>(&widget))
            Check(name, "window title", widget.windowTitle());
        for (const QAction* action : widget.actions())
        {
            Check(name, "action", action->text());
            Check(name, "tool tip of the action", action->toolTip());
        }
    }

    /// The texts of the widget and of all within, and whether they fit.
    void CheckAll(const QString& where, const QWidget& top)
    {
        CheckTexts(where, top);
        for (const QWidget* widget : top.findChildren<QWidget*>())
        {
            CheckTexts(where, *widget);
            const QString text = widget->property("text").toString() + widget->property("title").toString();
            const QWidget* group = qobject_cast<const QGroupBox*>(widget) ? widget : widget->parentWidget();
            if (group->property("title").toString().contains("Detection Conventional")) // stands in no grid
                continue;
            const bool shows = qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
                               qobject_cast<const QGroupBox*>(widget);
            if (shows && widget->isVisible() && HasWords(text) && !Fits(*widget))
                m_faults << QString("Clipped: %1: %2 \"%3\" has %4 of %5 pixels")
                                .arg(where, widget->metaObject()->className(), text)
                                .arg(widget->width())
                                .arg(widget->sizeHint().width());
        }
    }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void init()
    {
        Begin();
        CollectExceptions();
    }
    void cleanup() { End(); }
    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_translator); }

    void everyTextOfTheWindowIsTranslatedAndFits()
    {
        for (QMenu* menu : Window().findChildren<QMenu*>())
            emit menu->aboutToShow();
        for (QDockWidget* dock : Window().findChildren<QDockWidget*>())
            dock->show();
        Window().OfferHint();
        LongWork work("‹Long work›", &Window());
        QTest::qWait(LongWork::ShownAfterMs + 20);
        QVERIFY(work.Progress(1, 2));
        QVERIFY(Window().findChild<QFrame*>("longWork"));
        CheckAll("window", Window());
        Check("window", "title", Window().windowTitle());
        Verdict();
    }

    void everyQuestionIsTranslatedAndFits()
    {
        const QString file = File();
        for (const QString& name : {file, QString("nowhere.xml"), QString("/nowhere/a.xml")})
            m_exceptions.insert(QFileInfo(name).absoluteFilePath() + ":"); // where a reason follows
        int asked = 0;
        const Lookout user(
            [&](QDialog& dialog)
            {
                CheckAll("question " + QString::number(++asked), dialog);
                dialog.reject();
            });
        QVERIFY(Window().SaveTo(file));
        QVERIFY(!Window().OpenFile("nowhere.xml")); // not to be read
        Set(frequencyPath, "7100000");
        QVERIFY(!Window().NewFromSample()); // not saved
        WriteAll(file, ReadAll(file) + ' ');
        QVERIFY(!Window().Save()); // changed by somebody else
        WriteAll(File("b.job.xml.lock"), "1\njobedit\nfar-away\n");
        QVERIFY(!Window().SaveTo(File("b.job.xml"))); // open in an editor of another computer
        QVERIFY(!Window().SaveTo("/nowhere/a.xml"));  // not to be written
        for (QAction* action : Window().findChildren<QAction*>())
            if (action->text().contains("About"))
                action->trigger();
        QCOMPARE(asked, 6);
        Verdict();
    }
    void everyTextOfEveryDialogIsTranslatedAndFits()
    {
        int shown = 0;
        for (const Opened opened : {Opened::JobForm, Opened::StandAloneForm, Opened::Panels})
            ForEachTab(Window().Nodes().GetNodes(), opened,
                       [&](const QString& where, QWidget& page)
                       {
                           CheckAll(where, page);
                           CheckTexts(where, *static_cast<QTabWidget*>(page.window())->tabBar());
                           ++shown;
                       });
        QVERIFY(shown > 60);
        Verdict();
    }
};

QTEST_MAIN(TestPseudoTranslation)
#include "test_pseudotranslation.moc"
