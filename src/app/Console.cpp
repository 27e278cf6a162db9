#include "app/Console.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace ravelo {

using namespace Qt::StringLiterals;

void complain(const QString& text) {
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        std::fputs(qUtf8Printable(u"ravelo: "_s + line + u'\n'), stderr);
    }
}

int print(const QByteArray& text) {
    const auto size = static_cast<size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        std::perror("ravelo");
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

int report(const Answer& answer) {
    complain(answer.errors);
    const int printed = print(answer.output);
    return answer.status == 0 ? printed : answer.status;
}

} // namespace ravelo
