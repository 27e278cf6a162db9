#include "ui/clips/SecretText.h"

#include "secrets/SecretForms.h"

#include <QCoreApplication>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Translation context of this file.
struct SecretRow {
    Q_DECLARE_TR_FUNCTIONS(SecretRow)
};

QString name(const SecretForm* form) {
    return form ? form->name : SecretRow::tr("Unchecked text");
}

MaskedSecret shown(const ClipItem& clip, const SecretForm* form) {
    return form ? masked(clip.text, *form) : MaskedSecret{{}, QString(6, u'•'), {}};
}

} // namespace

QStringList secretRuns(const ClipItem& clip) {
    const MaskedSecret mask = shown(clip, SecretForms::withId(clip.secret));
    QStringList runs{mask.beginning, mask.dots, mask.ending};
    runs.removeAll({});
    return runs;
}

QString secretKind(const ClipItem& clip) {
    const SecretForm* form = SecretForms::withId(clip.secret);
    if (form && form->shown == SecretForm::Shown::name) {
        const qsizetype lines = clip.text.trimmed().count(u'\n') + 1;
        return lines == 1 ? SecretRow::tr("1 line") : SecretRow::tr("%1 lines").arg(lines);
    }
    return name(form);
}

QString secretSpoken(const ClipItem& clip) {
    const SecretForm* form = SecretForms::withId(clip.secret);
    const QString ending = shown(clip, form).ending;
    if (ending.isEmpty()) {
        return SecretRow::tr("Secret, %1").arg(name(form));
    }
    QStringList letters;
    for (const QChar letter : ending) {
        letters.append(letter);
    }
    return SecretRow::tr("Secret, %1, ends in %2").arg(name(form), letters.join(u' '));
}

} // namespace ravelo
