#include "app/Console.h"

#include <QStringList>
#include <QUtf8StringView>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QByteArray escaped(const QByteArray& bytes) {
    QByteArray text;
    for (const char byte : bytes) {
        switch (byte) {
        case '\n':
            text += "\\n";
            break;
        case '\t':
            text += "\\t";
            break;
        default:
            text += "\\x" + QByteArray(1, byte).toHex();
        }
    }
    return text;
}

/// The length in bytes of the first character; 0 if it is not UTF-8.
qsizetype lengthOfFirst(QByteArrayView text) {
    constexpr qsizetype longest = 4;
    for (qsizetype length = 1; length <= std::min(longest, text.size()); ++length) {
        if (QUtf8StringView(text.first(length)).isValidUtf8()) {
            return length;
        }
    }
    return 0;
}

} // namespace

QByteArray harmless(const QByteArray& text, char kept) {
    QByteArray result;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = lengthOfFirst(QByteArrayView(text).sliced(at));
        const QByteArray character = text.mid(at, std::max<qsizetype>(length, 1));
        const bool isKept = character.front() == kept;
        const char32_t code = length == 0 ? 0 : QString::fromUtf8(character).toUcs4().constFirst();
        result += !isKept && QChar::category(code) == QChar::Other_Control ? escaped(character)
                                                                           : character;
        at += character.size();
    }
    return result;
}

bool printsToTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

void complain(const QString& text) {
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QByteArray said = (u"ravelo: "_s + line + u'\n').toUtf8();
        std::fputs((isatty(STDERR_FILENO) == 1 ? harmless(said) : said).constData(), stderr);
    }
}

int print(const QByteArray& bytes) {
    const QByteArray text = printsToTerminal() ? harmless(bytes) : bytes;
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
