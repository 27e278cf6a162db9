#include "platform/system/HelperProgram.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

QString helperProgram(QLatin1StringView name) {
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = folder + u'/' + name;
    return QFileInfo::exists(beside) ? beside : folder + "/../libexec/ravelo/"_L1 + name;
}

} // namespace ravelo
