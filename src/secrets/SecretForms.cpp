#include "secrets/SecretForms.h"

#include "secrets/FormsFile.h"
#include "secrets/SecretChecks.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// The names in forms.json, for the tools that look for texts to translate.
[[maybe_unused]] constexpr const char* formNames[] = {
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "OpenSSH private key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Private key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "GitHub token"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "GitLab token"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "AWS key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Slack token"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Stripe key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Anthropic key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "OpenAI key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Google key"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "JSON Web Token"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Card number"),
    QT_TRANSLATE_NOOP("ravelo::SecretForm", "Key-like word"),
};

/// A longer text is no single token.
constexpr qsizetype longestToken = 8192;

template <typename Value>
Value named(const QString& name, std::initializer_list<std::pair<QLatin1StringView, Value>> known) {
    const auto found =
        std::ranges::find(known, name, [](const auto& one) { return QString(one.first); });
    Q_ASSERT(found != known.end());
    return found->second;
}

QStringList texts(const QJsonValue& list) {
    QStringList texts;
    const QJsonArray array = list.toArray();
    for (const auto text : array) {
        texts.append(text.toString());
    }
    return texts;
}

SecretForm parsed(const QJsonValue& value) {
    using Place = SecretForm::Place;
    using Check = SecretForm::Check;
    using Shown = SecretForm::Shown;
    SecretForm form;
    form.id = value[u"id"].toString();
    form.name = QCoreApplication::translate("ravelo::SecretForm",
                                            value[u"name"].toString().toUtf8().constData());
    form.contains = value[u"contains"].toString();
    form.place = named<Place>(value[u"place"].toString(),
                              {{"whole"_L1, Place::whole}, {"anywhere"_L1, Place::anywhere}});
    form.check = named<Check>(value[u"check"].toString(), {{"none"_L1, Check::none},
                                                           {"luhn"_L1, Check::luhn},
                                                           {"jwt"_L1, Check::jwt},
                                                           {"entropy"_L1, Check::entropy}});
    form.shown = named<Shown>(
        value[u"shown"].toString(),
        {{"ends"_L1, Shown::ends}, {"card"_L1, Shown::card}, {"name"_L1, Shown::name}});
    const QString expression = value[u"expression"].toString();
    form.expression.setPattern(
        form.place == Place::whole ? QRegularExpression::anchoredPattern(expression) : expression);
    form.yes = texts(value[u"yes"]);
    form.no = texts(value[u"no"]);
    return form;
}

std::vector<SecretForm> parsedFile() {
    std::vector<SecretForm> forms;
    const QJsonArray array = QJsonDocument::fromJson(formsFile).array();
    for (const auto form : array) {
        forms.push_back(parsed(form));
    }
    return forms;
}

bool hasForm(const QString& text, const QString& token, const SecretForm& form) {
    if (form.place == SecretForm::Place::anywhere) {
        return text.contains(form.contains) && form.expression.match(text).hasMatch();
    }
    const QString subject = form.check == SecretForm::Check::luhn ? cardDigits(token) : token;
    const QRegularExpressionMatch match = form.expression.match(subject);
    if (!match.hasMatch()) {
        return false;
    }
    switch (form.check) {
    case SecretForm::Check::none:
        return true;
    case SecretForm::Check::luhn:
        return hasLuhnDigit(subject);
    case SecretForm::Check::jwt:
        return isJwtHeader(match.capturedView(1));
    case SecretForm::Check::entropy:
        return hasEntropyOfKey(subject);
    }
    return false;
}

} // namespace

const std::vector<SecretForm>& SecretForms::all() {
    // Never destroyed: other threads use it until the process ends.
    static const auto& forms = *new const std::vector<SecretForm>(parsedFile());
    return forms;
}

const SecretForm* SecretForms::of(const QString& text, KeyLikeWords words) {
    const QString trimmed = text.trimmed();
    const QString token = trimmed.size() <= longestToken ? trimmed : QString();
    const auto found = std::ranges::find_if(all(), [&](const SecretForm& form) {
        const bool wanted = form.check != SecretForm::Check::entropy || words == KeyLikeWords::yes;
        return wanted && hasForm(text, token, form);
    });
    return found == all().end() ? nullptr : &*found;
}

const SecretForm* SecretForms::withId(const QString& id) {
    const auto found = std::ranges::find(all(), id, &SecretForm::id);
    return found == all().end() ? nullptr : &*found;
}

MaskedSecret masked(const QString& text, const SecretForm& form) {
    constexpr qsizetype shortest = 16; // Of a shorter secret nothing is shown.
    constexpr qsizetype visible = 4;
    const QString dots(6, u'•');
    const QString token = text.trimmed();
    if (form.shown == SecretForm::Shown::name) {
        return {form.name, {}, {}};
    }
    if (form.shown == SecretForm::Shown::card) {
        return {{}, u"•••• •••• •••• "_s, cardDigits(token).right(visible)};
    }
    return token.size() < shortest ? MaskedSecret{{}, dots, {}}
                                   : MaskedSecret{token.left(visible), dots, token.right(visible)};
}

} // namespace ravelo
