#pragma once

#include "presets.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

namespace JOBEDIT
{

/// The presets as a list: what one holds, applying, renaming (F2) and deleting it (Del). Deletes itself when it is
/// closed.
class PresetDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PresetDialog(QWidget* parent);

signals:
    /// The preset is to be applied.
    void Chosen(const QString& name);

private:
    void Fill(const QString& current);
    void ShowCurrent();
    void Apply();
    void Rename();
    void Remove();
    QString Current() const;

    Presets m_presets;
    QListWidget* m_list;
    QLabel* m_details;
    QPushButton* m_apply;
    QPushButton* m_rename;
    QPushButton* m_remove;
};

} // namespace JOBEDIT
