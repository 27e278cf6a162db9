#pragma once

#include "platform/Answer.h"

namespace ravelo {

/// `text` without control sequences, which names of files and models could contain: control
/// characters, except `kept`, and bytes that are not UTF-8 become escapes ("\x1b").
[[nodiscard]] QByteArray harmless(const QByteArray& text, char kept = '\n');

[[nodiscard]] bool printsToTerminal();

/// Prints to standard error, each line with the program's name.
void complain(const QString& text);

/// Prints all of it to standard output, to a terminal by `harmless`. Returns the exit status.
[[nodiscard]] int print(const QByteArray& text);

/// Prints output and errors of an answer. Returns its status if all could be printed.
[[nodiscard]] int report(const Answer& answer);

} // namespace ravelo
