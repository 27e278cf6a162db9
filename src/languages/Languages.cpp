#include "languages/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// In no namespace: the macro declares a function.
static void useTranslations() {
    Q_INIT_RESOURCE(languages);
}

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

void install(const QString& file, const QString& folder) {
    auto* translator = new QTranslator(qApp);
    if (translator->load(file, folder)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace

void useLanguage(const QString& language) {
    if (language.isEmpty()) {
        return;
    }
    useTranslations();
    // Qt's own texts, such as those of its file dialog, if the desktop has them.
    install(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(u"ravelo_"_s + language, u":/languages"_s);
    // English changes words only; and Austria's German has dates of its own.
    const QLocale wanted(language);
    if (language != u"en" && QLocale().language() != wanted.language()) {
        QLocale::setDefault(wanted);
    }
}

} // namespace ravelo
