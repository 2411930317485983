#include "guidepictures.h"

#include "checkdock.h"
#include "compareactions.h"
#include "comparedialog.h"
#include "findbar.h"
#include "keys/keys.h"
#include "mainwindow.h"
#include "nodepane.h"
#include "valuesdock.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QHash>
#include <QImage>
#include <QLineEdit>
#include <QStatusBar>
#include <QVector>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

constexpr QLatin1StringView tunerPath{"/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/"};
constexpr QLatin1StringView voicePath{"/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/"};
constexpr QSize windowSize(1240, 700);
constexpr int patienceMilliseconds = 10000;

/// With its 256 most frequent colours, which is a third of the size; the guide carries the pictures.
QImage Shrunk(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    const auto all = counts.keys();
    QVector<QRgb> colours(all.begin(), all.end());
    std::sort(colours.begin(), colours.end(), [&](QRgb one, QRgb other)
              { return std::pair(counts[other], other) < std::pair(counts[one], one); });
    colours.resize(std::min<decltype(colours.size())>(colours.size(), 256));
    return image.convertToFormat(QImage::Format_Indexed8, colours);
}

/// The editor on the sample job, out of sight.
class Model
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::Render)

public:
    Model(std::shared_ptr<const TKE::JobModel> model, const QString& directory, QTextStream& out, QTextStream& errors)
        : m_window(std::move(model)), m_directory(directory), m_out(out), m_errors(errors)
    {
        m_window.setAttribute(Qt::WA_DontShowOnScreen);
        m_window.resize(windowSize);
        m_window.MessageDock()->hide(); // nothing to say
    }

    bool Sit()
    {
        m_window.show();
        return Check(QDir().mkpath(m_directory), tr("%1 could not be made.").arg(m_directory)) &&
               Check(m_window.NewFromSample(), tr("The sample job could not be made.")) &&
               Check(m_window.Nodes().SelectNode(tunerPath), tr("The sample job has no %1.").arg(tunerPath)) &&
               Take("window", m_window) && TakePlan() && TakeFind() && TakeChanges() && TakeCheck() &&
               TakeCompare();
    }

private:
    bool TakeFind()
    {
        auto* bar = m_window.findChild<FindBar*>();
        bar->Open();
        auto* text = bar->findChild<QLineEdit*>();
        text->setText("bandwidth TDS_HF1");
        emit text->textEdited(text->text());
        const bool taken = Take("find", m_window);
        bar->hide();
        return taken;
    }

    bool TakeChanges()
    {
        if (!Write(TKE::Keys::TUNER_HF_NB_FREQUENCY, "7040000") || !Write(TKE::Keys::TUNER_HF_NB_GAIN_CTRL_METHOD, "0") ||
            !Write(TKE::Keys::TUNER_HF_NB_MGCVALUE, "20"))
            return false;
        auto* dock = m_window.findChild<ValuesDock*>();
        dock->show();
        dock->findChild<QCheckBox*>("asTree")->setChecked(false);
        dock->findChild<QCheckBox*>("onlyFromSaved")->setChecked(true);
        const bool done = WaitFor([dock] { return dock->IsUpToDate(); }) && Take("values", m_window);
        dock->hide();
        return done;
    }

    bool TakeCheck()
    {
        // An item that only a later version would know.
        if (!Write(TKE::Keys::TUNER_HF_NB_IFBANDWIDTH, "99"))
            return false;
        auto* dock = m_window.findChild<CheckDock*>();
        dock->show();
        dock->raise();
        dock->Start();
        const bool done = WaitFor([dock] { return !dock->IsRunning(); }) && Take("check", m_window);
        dock->hide();
        return done;
    }

    bool TakeCompare()
    {
        CompareDialog* dialog = m_window.Comparing().CompareChains(tunerPath, voicePath);
        if (!Check(dialog, tr("The sample job has no %1.").arg(voicePath)))
            return false;
        dialog->resize(windowSize.width() - 100, windowSize.height() / 2);
        return Take("compare", *dialog);
    }

    bool TakePlan()
    {
        auto* dock = m_window.findChild<QDockWidget*>("planDock");
        dock->setFloating(true);
        dock->resize(windowSize.width() - 100, windowSize.height());
        dock->show();
        const bool taken = Take("plan", *dock->widget());
        dock->hide();
        return taken;
    }

    bool Write(QLatin1StringView key, const QString& text)
    {
        TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(QString(tunerPath) + key);
        return Check(value && value->SetStoredText(text), tr("The sample job has no %1.").arg(QString(tunerPath) + key));
    }

    template <class Condition> bool WaitFor(Condition condition)
    {
        QElapsedTimer time;
        time.start();
        while (!condition() && time.elapsed() < patienceMilliseconds)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        return Check(condition(), tr("The editor did not come to rest."));
    }

    bool Take(const char* name, QWidget& widget)
    {
        m_window.statusBar()->clearMessage();
        QApplication::processEvents();
        const QString file = QDir(m_directory).filePath(QLatin1StringView(name) + QLatin1String(".png"));
        const bool written = Shrunk(widget.grab().toImage()).save(file, "PNG", 0);
        if (written)
            m_out << file << '\n';
        return Check(written, tr("%1 could not be written.").arg(file));
    }

    bool Check(bool good, const QString& reason)
    {
        if (!good)
            m_errors << reason << '\n';
        return good;
    }

    MainWindow m_window;
    QString m_directory;
    QTextStream& m_out;
    QTextStream& m_errors;
};

} // namespace

bool MakeGuidePictures(std::shared_ptr<const TKE::JobModel> model, const QString& directory, QTextStream& out,
                       QTextStream& errors)
{
    return Model(std::move(model), directory, out, errors).Sit();
}

} // namespace JOBEDIT
