#include "ui/preview/ProgramName.h"

namespace ravelo {

namespace {

constexpr qsizetype longest = 32;

} // namespace

QString programName(const QString& kept) {
    const QString last = kept.section(u'.', -1).simplified();
    const QString name = (last.isEmpty() ? kept.simplified() : last).left(longest);
    return name.left(1).toUpper() + name.mid(1);
}

} // namespace ravelo
