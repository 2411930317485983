#include "application/translationcenter.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace TKE
{

TranslationCenter::TranslationCenter() = default;
TranslationCenter::~TranslationCenter() = default;

TranslationCenter* TranslationCenter::Instance()
{
    static TranslationCenter center;
    return &center;
}

QString TranslationCenter::translate(const char* context, const QString& text, const char* disambiguation) const
{
    return QCoreApplication::translate(context ? context : "", text.toUtf8().constData(), disambiguation);
}

bool TranslationCenter::Install(const QLocale& locale)
{
    m_translators.clear();
    // By name and not by locale: the latter also tries the user's second and third language before the untranslated
    // texts.
    const QString language = locale.name();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString qtCatalogues = QLibraryInfo::location(QLibraryInfo::TranslationsPath); // path() with Qt 6
#else
    const QString qtCatalogues = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    Load(QStringLiteral("qtbase_") + language, qtCatalogues);
    return Load(QStringLiteral("ipcparam_") + language, QStringLiteral(":/translations"));
}

bool TranslationCenter::Load(const QString& name, const QString& directory)
{
    // "ipcparam_de_CH" also finds the catalogue "ipcparam_de".
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, directory))
        return false;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
    return true;
}

} // namespace TKE
