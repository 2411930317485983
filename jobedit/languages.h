#pragma once

#include <QMenu>

namespace JOBEDIT
{

/// The menu of the languages that the editor speaks. The choice is kept in the settings of the application; with the
/// language goes the form of numbers and dates.
class Languages : public QMenu
{
    Q_OBJECT

public:
    explicit Languages(QWidget* parent = nullptr);

    /// "de", for example; empty: that of the system.
    static QString GetChoice();
    static void Keep(const QString& language);
    /// Puts the language into effect for all that is made from now on.
    static void Apply(const QString& language);

signals:
    void Chosen(const QString& language);
};

} // namespace JOBEDIT
