#pragma once

#include "platform/Answer.h"

namespace ravelo {

/// What a terminal may show of `text`: names of files and models could hold what makes it do
/// something. Control characters, and bytes that are not UTF-8, become escapes ("\x1b"); `kept`
/// stays.
[[nodiscard]] QByteArray harmless(const QByteArray& text, char kept = '\n');

[[nodiscard]] bool printsToTerminal();

/// Prints to standard error, each line with the program's name.
void complain(const QString& text);

/// To standard output, whole: to a terminal as `harmless` has it, elsewhere as it is. The exit
/// status.
[[nodiscard]] int print(const QByteArray& text);

/// Both for an answer; its status, if all could be printed.
[[nodiscard]] int report(const Answer& answer);

} // namespace ravelo
