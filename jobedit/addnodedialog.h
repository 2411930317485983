#pragma once

#include "nodekinds.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace JOBEDIT
{

/// Asks which kind of node is to be added, where and under which name; says at once why one is not possible.
class AddNodeDialog : public QDialog
{
    Q_OBJECT

public:
    /// `nearPath` is the node that the user stands on.
    AddNodeDialog(JobDocument& document, const QString& nearPath, QWidget* parent);

    /// Null when none is chosen.
    const NodeKind* GetKind() const;
    const NodePlace* GetPlace() const;
    QString GetName() const;

    /// Stays open while what is chosen cannot be added, so kind and place are there when it was accepted.
    void accept() override;

private:
    void FillKinds();
    void ApplyFilter(const QString& text);
    void Slot_OnKind();
    void Slot_OnPlace();
    void Check();

    JobDocument& m_document;
    QString m_nearPath;
    std::vector<NodeKind> m_kinds;
    std::vector<NodePlace> m_places;
    QLineEdit* m_filter;
    QTreeWidget* m_list;
    QComboBox* m_place;
    QLineEdit* m_name;
    QLabel* m_result;
    QPushButton* m_ok;
};

} // namespace JOBEDIT
