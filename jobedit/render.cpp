#include "render.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QPixmap>
#include <QRegularExpression>
#include <QTabWidget>

namespace JOBEDIT
{

namespace
{

/// The pictures of one run: no two get the same name.
class Pictures
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::Render)

public:
    Pictures(const QString& directory, QTextStream& out, QTextStream& errors)
        : m_directory(directory), m_out(out), m_errors(errors)
    {
    }

    void Take(const JobNode& node, const char* entry, const QString& form, QTabWidget& dialog)
    {
        // Several nodes may be of one type: from the second on, they are told apart by their place in the job.
        const QString kind = QStringList{QLatin1StringView(entry), node.type, form}.join('_');
        if (!m_kinds.contains(kind))
            m_kinds.insert(kind, node.path);
        const QString place = m_kinds.value(kind) == node.path ? QString() : node.path;
        dialog.setAttribute(Qt::WA_DontShowOnScreen);
        dialog.resize(dialog.sizeHint().expandedTo({775, 480}));
        dialog.show();
        for (int index = 0; index < dialog.count(); ++index)
        {
            dialog.setCurrentIndex(index);
            QCoreApplication::processEvents();
            Write(dialog.grab(),
                  QString("%1_%2_%3%4").arg(kind, QString::number(index + 1), dialog.tabText(index), place));
        }
    }

    int Count() const { return m_count; }
    bool Failed() const { return m_failed; }

private:
    void Write(const QPixmap& picture, const QString& title)
    {
        static const QRegularExpression others("[^A-Za-z0-9_-]+");
        QString name = QString(title).replace(others, "_");
        if (name.endsWith('_'))
            name.chop(1);
        const QString file = QDir(m_directory).filePath(name + ".png");
        if (picture.save(file))
        {
            m_out << file << '\n';
            ++m_count;
            return;
        }
        m_errors << tr("%1 could not be written.").arg(file) << '\n';
        m_failed = true;
    }

    QString m_directory;
    QTextStream& m_out;
    QTextStream& m_errors;
    QHash<QString, QString> m_kinds; // entry, type and form of the dialogs: path of the first
    int m_count = 0;
    bool m_failed = false;
};

} // namespace

bool Render(const std::vector<JobNode>& nodes, const RenderRequest& request, QTextStream& out, QTextStream& errors)
{
    const auto wanted = [&](const char* name)
    { return request.entry.isEmpty() || request.entry == QLatin1StringView(name); };
    if (!QDir().mkpath(request.directory))
    {
        errors << Pictures::tr("%1 could not be made.").arg(request.directory) << '\n';
        return false;
    }
    Pictures pictures(request.directory, out, errors);
    for (const JobNode& node : nodes)
    {
        if (const Chain* chain = FindChain(node); chain && wanted(chain->entryPoint))
            if (const auto dialog = MakeDialog(node, request.form, nullptr))
                pictures.Take(node, chain->entryPoint, request.form == Form::Job ? "job" : "standalone", *dialog);
        for (const DirectPanel* panel : FindDirectPanels(node))
            if (wanted(panel->name))
                pictures.Take(node, panel->name, "direct", *MakePanels(node, {panel}, nullptr));
    }
    if (pictures.Count() == 0 && !pictures.Failed())
    {
        errors << Pictures::tr("The job has nothing to show for this.") << '\n';
        return false;
    }
    out << Pictures::tr("%1 pictures in %2").arg(pictures.Count()).arg(QDir::toNativeSeparators(request.directory))
        << '\n';
    return !pictures.Failed();
}

} // namespace JOBEDIT
