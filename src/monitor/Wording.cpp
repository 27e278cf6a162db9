#include "monitor/Wording.h"

#include <QCoreApplication>

namespace ravelo {

QString worded(Wording wording, const char* context, const char* source) {
    return wording == Wording::translated ? QCoreApplication::translate(context, source)
                                          : QString::fromUtf8(source);
}

QLocale localeOf(Wording wording) {
    // Translated to the code of the language: the desktop's may be another.
    return QLocale(worded(wording, "ravelo::Wording", QT_TRANSLATE_NOOP("ravelo::Wording", "en")));
}

} // namespace ravelo
