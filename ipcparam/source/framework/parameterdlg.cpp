#include "ipcparam/parameterdlg.h"

#include "application/arexception.h"
#include "application/translationcenter.h"
#include "configuration.h"
#include "jobmodel/parameter.h"
#include "keys/keymanager.h"
#include "value/tree.h"
#include "valuewidgets/readername.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>
#include <typeinfo>

namespace TKE
{

namespace
{

constexpr qsizetype mostHints = 1000;

std::string& DefaultTranslationNamespace()
{
    static std::string ns;
    return ns;
}

QString ReadXMLDirectory()
{
    try
    {
        return IPCParamConfiguration(QCoreApplication::applicationName()).GetJobModelXMLDirectory();
    }
    catch (const ARException&)
    {
        return {}; // without a configuration the built-in model serves
    }
}

} // namespace

ParameterDlg::ParameterDlg(const QString& basePath, QWidget* parent, const QString& objectName, bool readOnly, bool plainGrid)
    : QWidget(parent)
    , m_readOnly(readOnly)
    , m_basePath(basePath)
    , m_tree(Tree::Instance())
{
    setObjectName(objectName);
    if (plainGrid)
        m_grid = new QGridLayout(this);
    else
    {
        m_groupBox = new QGroupBox;
        m_grid = new QGridLayout(m_groupBox);
        auto* outer = new QGridLayout(this);
        outer->addWidget(m_groupBox);
    }
    m_xmlDirectory = ReadXMLDirectory();
}

ParameterDlg::~ParameterDlg() = default;

void ParameterDlg::SetDefaultTranslationNamespace(const QString& ns) { DefaultTranslationNamespace() = ns.toStdString(); }

QString ParameterDlg::BuildFinalKey(const QString& key) const { return key; }

QString ParameterDlg::GetItemPath(const QString& key)
{
    try
    {
        return m_basePath + KeyManager::Instance()->GetFullNameByKey(BuildFinalKey(key));
    }
    catch (const ARException&)
    {
        return m_basePath;
    }
}

QString ParameterDlg::GetParentPath(const QString& path)
{
    return path.left(QStringView(path).chopped(path.isEmpty() ? 0 : 1).lastIndexOf(u'/') + 1);
}

QString ParameterDlg::PathOf(const QString& key, bool fromBase) { return fromBase ? m_basePath + key : GetItemPath(key); }

void ParameterDlg::GetValuePtr(ValueObservingPtr<ValueBase>& ptr, const QString& key)
{
    ptr.Reset(m_tree->FindValue(GetItemPath(key)));
}

void ParameterDlg::GetValuePtr(ValueObservingPtr<ValueBase>& ptr, const QString& path, const QString& key)
{
    ptr.Reset();
    for (QString level = path;;)
    {
        if (ValueBase* value = m_tree->FindValue(level + key))
        {
            ptr.Reset(value);
            return;
        }
        level = GetParentPath(level);
        if (level.isEmpty() || level == QLatin1String("/"))
            return;
    }
}

void ParameterDlg::GetValuePtr(bool searchUpwards, ValueObservingPtr<ValueBase>& ptr, const Parameter& parameter)
{
    if (searchUpwards)
        GetValuePtr(ptr, m_basePath, parameter.GetUniqueParameterName());
    else
        GetValuePtr(ptr, parameter.GetUniqueParameterName());
}

void ParameterDlg::Enable(const QString& key, bool enable, bool fromBase)
{
    if (ValueBase* value = m_tree->FindValue(PathOf(key, fromBase)))
        value->SetState(enable ? stEnabled : stDisabled);
}

void ParameterDlg::Enable(const Parameter& parameter, bool enable, bool fromBase)
{
    Enable(parameter.GetUniqueParameterName(), enable, fromBase);
}

void ParameterDlg::EnableUp(const QString& key, bool enable)
{
    ValueObservingPtr<ValueBase> value; // an observer of the state may remove the value
    value.Reset(m_tree->FindValue(ParentPathOf(key)));
    if (!value)
        return;
    value->SetState(enable ? stEnabled : stDisabled);
    if (value && value->GetTypeCode() == int(ValueKind::Bool))
        value->SetFromText(enable ? QStringLiteral("true") : QStringLiteral("false"));
}

bool ParameterDlg::IsChecked(const QString& key, bool fromBase)
{
    const ValueBase* value = m_tree->FindValue(PathOf(key, fromBase));
    return value && value->GetBool();
}

void ParameterDlg::SetChecked(const QString& key, bool checked, bool fromBase)
{
    ValueBase* value = m_tree->FindValue(PathOf(key, fromBase));
    if (value && value->GetState() == stEnabled)
        value->SetBool(checked);
}

void ParameterDlg::SetSelection(const QString& key, const QString& selection, bool fromBase)
{
    ValueBase* value = m_tree->FindValue(PathOf(key, fromBase));
    if (value && value->GetState() == stEnabled)
        value->SetFromText(selection);
}

QString ParameterDlg::GetSelectedValue(const QString& key)
{
    const ValueBase* value = m_tree->FindValue(GetItemPath(key));
    if (!value || value->GetKind() != ValueKind::Selection)
        return {};
    const SelectionItem* item = static_cast<const ValueSelection*>(value)->GetSelectedItem();
    return item ? item->GetName() : QString();
}

ValueBase* ParameterDlg::AddObserver(const QString& key)
{
    ValueBase* value = m_tree->FindValue(GetItemPath(key));
    if (value)
        value->Attach(this);
    return value;
}

void ParameterDlg::DeleteObserver(ValueBase* value)
{
    if (value)
        value->Detach(this);
}

void ParameterDlg::Update(Observable*, TChangeCode) {}

QString ParameterDlg::GetTitle() const { return m_groupBox ? m_groupBox->title() : QString(); }

void ParameterDlg::SetTitle(const QString& title)
{
    if (m_groupBox)
        m_groupBox->setTitle(title);
}

void ParameterDlg::SetDefaultStretchFactor()
{
    // One beyond the first free row and column: rows that a panel adds later still come before the stretch.
    m_grid->setRowStretch(m_grid->rowCount() + 1, 1);
    m_grid->setColumnStretch(m_grid->columnCount() + 1, 1);
}

QString ParameterDlg::GetTimeFormatString() { return QStringLiteral("dd.MM.yyyy hh:mm:ss"); }

QString ParameterDlg::GetXMLFileDirPath()
{
    m_xmlDirectory = ReadXMLDirectory();
    return m_xmlDirectory;
}

void ParameterDlg::SetTranslationNamespace(const char* ns) { m_translationNamespace = ns ? ns : ""; }

QString ParameterDlg::GetTranslation(const QString& text) const
{
    const std::string& ns = m_translationNamespace.empty() ? DefaultTranslationNamespace() : m_translationNamespace;
    return TranslationCenter::Instance()->translate(ns.c_str(), text, nullptr);
}

void ParameterDlg::MakeBuddy(QLabel* label, const QLayoutItem* item)
{
    QWidget* widget = item ? const_cast<QLayoutItem*>(item)->widget() : nullptr;
    if (label && widget)
        ReaderName::FromLabel(*label, *widget);
}

// A tab widget asks every page for its size, and hidden pages then shape the text of every label. Panels built alike are of one size, so
// hidden ones that promise it answer with the size of their like; any other one measures itself.
QSize ParameterDlg::CachedHint(bool minimum) const
{
    static QHash<size_t, QSize> hints;
    const auto measure = [&] { return minimum ? QWidget::minimumSizeHint() : QWidget::sizeHint(); };
    if (!m_sharesSizeHints)
        return measure();
    const size_t look = qHashMulti(size_t(minimum), font(), style()->objectName(), logicalDpiX(), layoutDirection());
    // By its type: a host may derive from a panel that shares and add widgets of its own.
    const size_t key = qHashMulti(look, m_signature, typeid(*this).hash_code());
    if (!isVisible())
    {
        if (const auto found = hints.constFind(key); found != hints.constEnd())
            return *found;
    }
    const QSize hint = measure();
    if (hints.size() >= mostHints) // panels that rebuild parts of themselves look different each time
        hints.clear();
    hints.insert(key, hint);
    return hint;
}

QSize ParameterDlg::sizeHint() const { return CachedHint(false); }

QSize ParameterDlg::minimumSizeHint() const { return CachedHint(true); }

} // namespace TKE
