#include "ipcparam/ipcparam.h"

#include "application/errorhandler.h"
#include "ipcparam/parameterdlg.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "value/tree.h"

namespace TKE
{

IPCParam::IPCParam(const QString& jobPath, const QString& taskPath, std::vector<QString>& resources,
                   const QString& baseItemPath, const QString& contextA, const QString& contextB,
                   const QString& typePath, const QString& translationNamespace)
    : m_tree(Tree::Instance()), m_jobContext(true), m_readOnly(false), m_optionA(false), m_optionB(false)
{
    InitMember(jobPath, taskPath, resources, baseItemPath, contextA, contextB, typePath, translationNamespace);
}

IPCParam::IPCParam(const QString& baseItemPath, QWidget* parent, bool readOnly, bool optionA, bool optionB,
                   const QString& typePath, const QString& translationNamespace)
    : QTabWidget(parent)
    , m_tree(Tree::Instance())
    , m_jobContext(false)
    , m_readOnly(readOnly)
    , m_optionA(optionA)
    , m_optionB(optionB)
{
    InitMember({}, {}, {}, baseItemPath, {}, {}, typePath, translationNamespace);
}

IPCParam::~IPCParam()
{
    // The tabs go with the dialog; nobody is told that another one becomes current on the way.
    const QSignalBlocker blocker(this);
    DeletePanels();
}

void IPCParam::InitMember(const QString& jobPath, const QString& taskPath, const std::vector<QString>& resources,
                          const QString& baseItemPath, const QString& contextA, const QString& contextB,
                          const QString& typePath, const QString& translationNamespace)
{
    setObjectName(QStringLiteral("IPCParam"));
    m_jobPath = jobPath;
    m_taskPath = taskPath;
    m_resources = resources;
    m_baseItemPath = baseItemPath;
    m_contextA = contextA;
    m_contextB = contextB;
    m_translationNamespace = translationNamespace;

    const Node* node = m_tree->FindNode(typePath);
    if (!node)
        node = m_tree->FindNode(QString(Keys::JOBMANAGEMENT + u'/' + Keys::IPC_TYPE));
    if (node)
        m_ipcType = node->GetTypeText();

    ParameterDlg::SetDefaultTranslationNamespace(m_translationNamespace);
}

void IPCParam::SetTab(int n)
{
    if (n > 0 && isTabEnabled(n - 1))
        setCurrentIndex(n - 1);
}

void IPCParam::SetCurrentTab(int index)
{
    tabBar()->setCurrentIndex(index);
}

int IPCParam::CurrentTab() const
{
    return tabBar()->currentIndex();
}

// The mode belongs to the set of tasks: it sits two levels above the task.
REPORTGENERATOR::Exciter_Settings::ExciterModeType IPCParam::GetExciterMode() const
{
    using REPORTGENERATOR::Exciter_Settings;
    const Node* node = m_tree->FindNode(m_baseItemPath);
    for (int level = 0; node && level < 2; ++level)
        node = node->GetParent();
    if (!node)
        return Exciter_Settings::emNone;
    const auto* mode =
        dynamic_cast<ValueSelection*>(m_tree->FindValue(QString(node->GetPathName() + u'/' + Keys::ExciterMode)));
    return mode ? Exciter_Settings::ExciterModeType(mode->GetCurrentKey()) : Exciter_Settings::emNone;
}

// Whether the type of the task is one that generates activities.
bool IPCParam::HasActivityType() const
{
    return m_ipcType.contains(QLatin1StringView("AGED")) || m_ipcType.contains(QLatin1StringView("AGSC")) ||
           m_ipcType.contains(QLatin1StringView("AGMC"));
}

QString IPCParam::GetItemPath(const QString& path, const QString& key) const
{
    QString itemPath = path;
    try
    {
        itemPath += KeyManager::Instance()->GetFullNameByKey(key);
    }
    catch (const std::exception& exception)
    {
        ErrorHandler::Interface().Report(Severity::Error, QStringLiteral("IPCParam::GetItemPath(): failed"),
                                         QString::fromUtf8(exception.what()));
    }
    return itemPath;
}

void IPCParam::AddObserver(const QString& path, const QString& key)
{
    if (ValueBase* value = m_tree->FindValue(GetItemPath(path, key)))
        value->Attach(this);
}

void IPCParam::DeleteObserver(const QString& path, const QString& key)
{
    if (ValueBase* value = m_tree->FindValue(GetItemPath(path, key)))
        value->Detach(this);
}

} // namespace TKE
