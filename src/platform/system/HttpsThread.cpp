#include "platform/system/HttpsThread.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThread>
#include <QTimer>

#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Whether there is a way to an address. Asks the kernel alone, and sends nothing.
bool isRoutable(const addrinfo& one) {
    const int probe = socket(one.ai_family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const bool is = probe >= 0 && connect(probe, one.ai_addr, one.ai_addrlen) == 0;
    if (probe >= 0) {
        close(probe);
    }
    return is;
}

/// The first address of a host, an IPv4 one with a way to it before others: those that have both
/// mostly have that one working. Blocks, for as long as name servers please.
QHostAddress addressOf(const QString& host) {
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_ADDRCONFIG;
    addrinfo* found = nullptr;
    if (getaddrinfo(QUrl::toAce(host).constData(), nullptr, &hints, &found) != 0) {
        return {};
    }
    QHostAddress address;
    for (const addrinfo* one = found; one != nullptr; one = one->ai_next) {
        if (address.isNull() ||
            (one->ai_family == AF_INET && address.protocol() != QAbstractSocket::IPv4Protocol &&
             isRoutable(*one))) {
            address = QHostAddress(one->ai_addr);
        }
    }
    freeaddrinfo(found);
    return address;
}

QNetworkRequest prepared(const HttpsRequest& request, const QHostAddress& address,
                         const QByteArray& userAgent, const std::optional<QSslConfiguration>& tls) {
    QUrl url = request.url;
    url.setHost(address.toString());
    QNetworkRequest prepared(url);
    prepared.setPeerVerifyName(request.url.host());
    for (const auto& [name, value] : request.headers) {
        prepared.setRawHeader(name, value);
    }
    prepared.setRawHeader("Host", request.url.authority(QUrl::FullyEncoded).toLatin1());
    prepared.setRawHeader("User-Agent", userAgent);
    prepared.setRawHeader("Accept-Encoding", "identity"); // What is small stays small.
    prepared.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::ManualRedirectPolicy);
    prepared.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    if (tls) {
        prepared.setSslConfiguration(*tls);
    }
    return prepared;
}

/// Whether the exchange itself failed; an error of its subject is an answer like others.
bool isBroken(const QNetworkReply& reply) {
    return (reply.error() != QNetworkReply::NoError &&
            reply.error() < QNetworkReply::ContentAccessDenied) ||
           reply.error() == QNetworkReply::ProtocolFailure ||
           !reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
}

/// Blocks until the answer is there or the thread is told to quit.
std::optional<HttpsAnswer> answerTo(const QNetworkRequest& request, qint64 largest) {
    QEventLoop loop;
    QNetworkAccessManager manager;
    manager.setProxy(QNetworkProxy::NoProxy); // The system's is looked for by calls without an end.
    const std::unique_ptr<QNetworkReply> reply(manager.get(request));
    reply->setReadBufferSize(largest + 1);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [&] {
        if (reply->bytesAvailable() > largest) {
            loop.quit();
        }
    });
    loop.exec();
    if (!reply->isFinished() || isBroken(*reply) || reply->bytesAvailable() > largest) {
        return std::nullopt;
    }
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    return HttpsAnswer{status.toInt(), reply->readAll(), reply->rawHeader("Retry-After")};
}

} // namespace

/// From the lookup of the address to the answer. Main thread.
struct HttpsThread::Exchange {
    HttpsRequest request;
    std::function<void(std::optional<HttpsAnswer>)> done; ///< None where nobody waits any more.
    Handle lookup;
    QThread* thread = nullptr;         ///< While it runs.
    std::optional<HttpsAnswer> answer; ///< The thread's until it has finished.

    void breakOff() {
        lookup.reset();
        if (thread) {
            thread->quit();
        }
    }

    void finish(std::optional<HttpsAnswer> with) {
        if (const auto tell = std::exchange(done, nullptr)) {
            tell(std::move(with));
        }
    }
};

HttpsThread::HttpsThread(DetachedJobs& jobs, QByteArray userAgent,
                         std::optional<QSslConfiguration> tls)
    : jobs_(jobs), userAgent_(std::move(userAgent)), tls_(std::move(tls)) {}

HttpsThread::~HttpsThread() {
    for (const auto& exchange : running_) {
        exchange->breakOff();
    }
    for (const auto& exchange : running_) {
        exchange->thread->wait();
        delete std::exchange(exchange->thread, nullptr);
    }
}

Handle HttpsThread::get(const HttpsRequest& request,
                        std::function<void(std::optional<HttpsAnswer>)> done) {
    auto exchange = std::make_shared<Exchange>(Exchange{request, std::move(done), {}, {}, {}});
    auto address = std::make_shared<QHostAddress>();
    exchange->lookup = jobs_.run(
        [address, url = request.url] {
            if (url.scheme() == "https"_L1) {
                *address = addressOf(url.host());
            }
        },
        [this, address, weak = std::weak_ptr(exchange)] {
            const auto waiting = weak.lock();
            if (waiting && address->isNull()) {
                waiting->finish(std::nullopt);
            } else if (waiting) {
                start(waiting, *address);
            }
        });
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(request.timeOut), this,
                       [weak = std::weak_ptr(exchange)] {
                           if (const auto late = weak.lock()) {
                               late->breakOff();
                               late->finish(std::nullopt);
                           }
                       });
    return Handle([exchange] {
        exchange->done = nullptr;
        exchange->breakOff();
    });
}

void HttpsThread::start(const std::shared_ptr<Exchange>& exchange, const QHostAddress& address) {
    QThread* const thread =
        QThread::create([exchange, address, userAgent = userAgent_, tls = tls_] {
            const HttpsRequest& request = exchange->request;
            exchange->answer =
                answerTo(prepared(request, address, userAgent, tls), request.largest);
        });
    thread->setObjectName(u"https"_s);
    exchange->thread = thread;
    running_.push_back(exchange);
    connect(thread, &QThread::finished, this, [this, thread, exchange] {
        std::erase(running_, exchange);
        exchange->thread = nullptr;
        exchange->request = {}; // What it holds may be secret.
        thread->deleteLater();
        exchange->finish(std::move(exchange->answer));
    });
    thread->start();
}

} // namespace ravelo
