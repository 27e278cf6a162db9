#include "platform/system/CurlClient.h"

#include "base/ProgramRun.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxTrailer = 4096;

/// curl prints the body, and then, as `trailer` asks for it, the status and Retry-After.
constexpr QLatin1StringView trailer(R"(\n%{http_code} %header{retry-after})");

/// A line for each header, as curl reads them.
Secret headerLines(const HttpsRequest& request) {
    QByteArray others;
    for (const auto& [name, value] : request.headers) {
        others += name + ": " + value + '\n';
    }
    const QByteArray token = request.authorization.bytes();
    constexpr QByteArrayView name = "Authorization: ";
    QByteArray lines; // Its only buffer, which is erased: growing would leave copies.
    lines.reserve(name.size() + token.size() + 1 + others.size());
    if (!token.isEmpty()) {
        lines.append(name).append(token).append('\n');
    }
    lines.append(others);
    return Secret(std::move(lines));
}

std::optional<HttpsAnswer> answerIn(const QByteArray& output, qint64 maxBody) {
    const qsizetype end = output.lastIndexOf('\n');
    const QByteArray head = output.sliced(end + 1);
    const qsizetype space = head.indexOf(' ');
    const int status = head.left(space).toInt();
    if (end < 0 || end > maxBody || space < 0 || status == 0) {
        return std::nullopt;
    }
    return HttpsAnswer{status, output.first(end), head.sliced(space + 1)};
}

} // namespace

CurlClient::CurlClient(const QByteArray& userAgent, const QProcessEnvironment& environment,
                       QStringList options)
    // -q comes first: the user's .curlrc is not for us. The header lines of the input hold the
    // token, which every user could read among the arguments.
    : arguments_(QStringList{u"-q"_s, u"--silent"_s, u"--globoff"_s, u"--proto"_s, u"=https"_s,
                             u"--http1.1"_s, u"--header"_s, u"@-"_s, u"--user-agent"_s,
                             QString::fromLatin1(userAgent), u"--write-out"_s, trailer} +
                 std::move(options)) {
    for (const auto& name : {u"https_proxy"_s, u"HTTPS_PROXY"_s, u"all_proxy"_s, u"ALL_PROXY"_s,
                             u"no_proxy"_s, u"NO_PROXY"_s}) {
        if (environment.contains(name)) {
            environment_.insert(name, environment.value(name));
        }
    }
    environment_.insert(u"LC_ALL"_s,
                        u"C.UTF-8"_s); // Without any variable it would get all of ours.
}

Handle CurlClient::get(const HttpsRequest& request,
                       std::function<void(std::optional<HttpsAnswer>)> done) {
    ProgramRun run;
    run.path = u"/usr/bin/curl"_s;
    run.arguments =
        arguments_ + QStringList{u"--max-time"_s, QString::number(request.timeout.count()),
                                 u"--url"_s, request.url.toString(QUrl::FullyEncoded)};
    run.environment = environment_;
    run.input = headerLines(request);
    run.timeout = std::chrono::duration_cast<std::chrono::milliseconds>(request.timeout);
    run.maxOutput = request.maxBody + maxTrailer;
    return runProgram(
        run, this,
        [max = request.maxBody, done = std::move(done)](const std::optional<QByteArray>& output) {
            done(output ? answerIn(*output, max) : std::nullopt);
        });
}

} // namespace ravelo
