#include "languages.h"

#include "application/translationcenter.h"

#include <QActionGroup>
#include <QLocale>
#include <QSettings>

namespace JOBEDIT
{

namespace
{

const char* const languageKey = "language";

} // namespace

Languages::Languages(QWidget* parent) : QMenu(parent)
{
    setTitle(tr("&Language"));
    auto* group = new QActionGroup(this);
    // Each language by its own name: who cannot read the others finds it.
    const std::pair<QString, QString> languages[] = {{QString(), tr("&System")},
                                                     {QStringLiteral("en"), QStringLiteral("&English")},
                                                     {QStringLiteral("de"), QStringLiteral("&Deutsch")}};
    for (const auto& [language, name] : languages)
    {
        QAction* action = addAction(name, this, [this, language = language] { emit Chosen(language); });
        action->setCheckable(true);
        action->setChecked(language == GetChoice());
        group->addAction(action);
    }
}

QString Languages::GetChoice()
{
    return QSettings().value(languageKey).toString();
}

void Languages::Keep(const QString& language)
{
    QSettings().setValue(languageKey, language);
}

void Languages::Apply(const QString& language)
{
    // The system knows the country too, and with it more of the form of numbers.
    const QLocale system = QLocale::system();
    const QLocale chosen(language);
    QLocale::setDefault(language.isEmpty() || chosen.language() == system.language() ? system : chosen);
    TKE::TranslationCenter::Instance()->Install(QLocale());
}

} // namespace JOBEDIT
