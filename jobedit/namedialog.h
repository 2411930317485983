#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace JOBEDIT
{

/// Asks for a name and says at once why one is not possible.
class NameDialog : public QDialog
{
    Q_OBJECT

public:
    /// Gives why the name is not possible, or an empty text.
    using Fault = std::function<QString(const QString& name)>;

    NameDialog(const QString& title, const QString& label, const QString& name, Fault fault, QWidget* parent);

    QString GetName() const;

    /// Empty when the user cancelled.
    static QString Ask(const QString& title, const QString& label, const QString& name, Fault fault, QWidget* parent);

private:
    void Check();

    Fault m_fault;
    QLineEdit* m_name;
    QLabel* m_reason;
    QPushButton* m_ok;
};

} // namespace JOBEDIT
