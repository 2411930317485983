#pragma once

#include "jobnode.h"

#include <QStringList>
#include <memory>
#include <span>
#include <vector>

class QTabWidget;
class QWidget;

namespace TKE
{
class IPCParam;
class ParameterDlg;
} // namespace TKE

namespace JOBEDIT
{

/// How a dialog host is used: within a job, or on one task alone.
enum class Form
{
    Job,
    StandAlone,
};

/// Which entry point of the dialog host serves the tasks of a type.
struct Chain
{
    const char* type;
    const char* entryPoint;
    void (*open)(TKE::IPCParam& dialog);
    TKE::Band band = TKE::Band::Both; ///< tells apart tasks that share a type text
};

/// A panel that nodes of a type open directly, without the dialog host. A type may have several.
struct DirectPanel
{
    const char* type;
    const char* title;
    const char* name;
    TKE::ParameterDlg* (*make)(const JobNode& node, QWidget* parent);
};

std::span<const Chain> Chains();
std::span<const DirectPanel> DirectPanels();

/// Null when no entry point serves the node.
const Chain* FindChain(const JobNode& node);
std::vector<const DirectPanel*> FindDirectPanels(const JobNode& node);
/// Whether MakeDialog has something for the node.
bool HasDialog(const JobNode& node);
/// Names of all entry points and direct panels, each once.
QStringList EntryNames();

/// The dialog of the node: the host with the tabs of the node's chain or, where no chain serves it, its direct panels
/// as tabs. Null when there is neither. Only the stand-alone form is made with `parent`; it may have no tab.
std::unique_ptr<QTabWidget> MakeDialog(const JobNode& node, Form form, QWidget* parent);
/// These panels as tabs.
std::unique_ptr<QTabWidget> MakePanels(const JobNode& node, const std::vector<const DirectPanel*>& panels,
                                       QWidget* parent);

} // namespace JOBEDIT
