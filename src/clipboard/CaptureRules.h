#pragma once

#include "base/Result.h"
#include "platform/Pasteboard.h"
#include "secrets/SecretForms.h"
#include "store/history/Verdict.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace ravelo {

/// Which copies the user does not want in the history.
struct CaptureRules {
    /// What becomes of a text with the form of a secret.
    enum class Secrets { dropped, inMemory, asAnyText };

    QStringList programs;               ///< Names as in `isOfProgram`.
    QList<QRegularExpression> patterns; ///< Made by `ignorePattern`.
    Secrets secrets = Secrets::inMemory;
    KeyLikeWords keyLikeWords = KeyLikeWords::no;

    /// Whether the names of programs are kept with what is copied from them.
    enum class ProgramNames { dropped, kept };

    ProgramNames programNames = ProgramNames::dropped;
};

/// An expression for texts to ignore. Its matching ends after a bounded amount of work. The error
/// is for the user and says where the mistake is.
[[nodiscard]] Result<QRegularExpression> ignorePattern(const QString& expression);

/// All valid ones.
[[nodiscard]] QList<QRegularExpression> ignorePatterns(const QStringList& expressions);

/// What an expression says about a text. `unknown` if matching was ended.
enum class PatternAnswer { matches, differs, unknown };

/// Looks at the first 65,536 characters. Any thread.
[[nodiscard]] PatternAnswer tryPattern(const QRegularExpression& pattern, const QString& text);

/// Any thread; can take long if there are patterns.
[[nodiscard]] Verdict judge(const CaptureRules& rules, const QString& text);

/// The name to keep; empty if there is none, or none is to be kept.
[[nodiscard]] QString keptName(const CaptureRules& rules, const PasteboardOwner& owner);

/// Whether the owner has one of these names: its window class or instance, or its app id or the
/// last part of it; upper and lower case are the same.
[[nodiscard]] bool isOfProgram(const PasteboardOwner& owner, const QStringList& names);

} // namespace ravelo
