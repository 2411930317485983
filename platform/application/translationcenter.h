#pragma once

#include <QString>

#include <memory>
#include <vector>

class QLocale;
class QTranslator;

namespace TKE
{

/// Translates texts and loads the catalogues that they come from. GUI thread only.
class TranslationCenter
{
public:
    static TranslationCenter* Instance();

    /// The text in the language installed, or as it is when no catalogue has it. `context` is a class name such as
    /// "TKE::TunerDlg"; it and `disambiguation` may be null.
    QString translate(const char* context, const QString& text, const char* disambiguation) const;

    /// Replaces the catalogues: the application's for the locale's language (compiled in as
    /// ":/translations/ipcparam_<language>.qm") and Qt's own where it is installed. False when the application has none
    /// for this language; its texts then stand untranslated. Needs a QCoreApplication.
    bool Install(const QLocale& locale);

private:
    TranslationCenter();
    ~TranslationCenter();
    bool Load(const QString& name, const QString& directory);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace TKE
