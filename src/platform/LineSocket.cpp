#include "platform/LineSocket.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/LinuxTcp.h"
#include "text/Text.h"

namespace {

/// How much of a flood is handled at a time, before the event loop gets its turn: less of it, down to a few lines, as
/// long as a slow script takes longer than a moment, for which signals, timers and the user wait.
constexpr std::size_t kLargestSlice = std::size_t{4} * 1024, kFirstSlice = 512, kSmallestSlice = 64;
constexpr qint64 kMomentMs = 100;

/// How long slices may follow on one another.
constexpr qint64 kTurnMs = 1;

/// How long a connection that is closed may take to send what was written before.
constexpr std::chrono::seconds kPartingTime{5};

constexpr int kLastPort = 65535;

std::string SystemText(int code) { return FromUtf8(qt_error_string(code).toStdString()); }

}  // namespace

Wire::Wire(QTcpSocket* socket, Listener listener, QObject* parent)
    : QObject(parent), socket_(socket), listener_(std::move(listener)), slice_(kFirstSlice) {
    socket_->setParent(this);
    tmrSilence_.setObjectName("tmrSilence");
    tmrAnswer_.setObjectName("tmrAnswer");
    for (QTimer* const timer : {&tmrSilence_, &tmrAnswer_}) timer->setSingleShot(true);
    connect(&tmrSilence_, &QTimer::timeout, this, [this] { listener_.onSilence(); });
    connect(&tmrAnswer_, &QTimer::timeout, this, [this] {
        const std::string seconds = std::to_string(kAnswerWithin.count());
        End(Failure(QAbstractSocket::SocketTimeoutError, "there was no answer within " + seconds + " seconds"));
    });
    connect(socket_, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        End(Failure(error, FromUtf8(socket_->errorString().toStdString())));
    });
    if (socket_->state() == QAbstractSocket::ConnectedState) {
        host_ = socket_->peerAddress().toString().toStdString();
        BeConnected();
    } else {
        connect(socket_, &QTcpSocket::connected, this, [this] {
            BeConnected();
            listener_.onConnected();
        });
    }
}

void Wire::Connect(const std::string& host, int port) {
    host_ = host;
    // Later, as a socket's own errors come: the session is still about to connect.
    if (port < 1 || port > kLastPort) return EndLater(Failure(0, "there is no port " + std::to_string(port)));
    tmrSilence_.start(kSilenceToldAfter);
    tmrAnswer_.start(kAnswerWithin);
    socket_->connectToHost(QString::fromStdString(host), static_cast<quint16>(port));
}

void Wire::BeConnected() {
    tmrSilence_.stop();
    tmrAnswer_.stop();
    KeepAlive(socket_->socketDescriptor());
    stream_ = std::make_unique<SocketStream>(socket_->socketDescriptor(),
                                             SocketStream::Listener{[this] { OnReadable(); }, [this] { OnSent(); }});
    if (!stream_->IsOpen()) EndLater(Failure(QAbstractSocket::SocketResourceError, SystemText(EMFILE)));
    ahead_ = socket_->readAll().toStdString();
    if (!ahead_.empty()) ReadLater();
    socket_->disconnect(this);
    socket_->abort();
    std::exchange(socket_, nullptr)->deleteLater();  // later: this may be called out of one of its signals
}

bool Wire::IsConnected() const { return stream_ && !over_; }

void Wire::Write(std::string_view bytes) {
    if (full_ || !stream_ || stream_->End()) return;
    stream_->Write(bytes);
    if (UnsentBytes() <= kBufferLimit) return;
    stream_->Send();
    if (UnsentBytes() <= kBufferLimit) return;
    full_ = true;
    EndLater(Failure(0, "more than 1 MiB of what was sent has not been read"));
}

void Wire::OnSent() {
    if (!over_) return listener_.onWritten();
    if (UnsentBytes() == 0) deleteLater();  // it was only to be sent
}

void Wire::OnReadable() {
    if (over_) return OnSent();
    // A reader that waits for its user has an event loop of its own.
    if (reads_) return stream_->ListenForMore(false);
    if (listener_.mayRead()) return Read();
    ReadAhead();
    EndWithStream();
}

void Wire::Read() {
    if (reads_ || over_ || !stream_) return;
    QElapsedTimer turn;
    turn.start();
    while (!over_ && listener_.mayRead() && ReadPacket() && !turn.hasExpired(kTurnMs)) {
    }
    if (over_) return;
    // The rest of a flood waits until everything else has had its turn.
    stream_->ListenForMore(true);
    if (!ahead_.empty() && listener_.mayRead()) ReadLater();
    EndWithStream();
}

/// Whoever has read last has met the end, be it that something arrived or that the reader went on.
void Wire::EndWithStream() {
    if (const std::optional<int> end = stream_->End()) End(AsError(*end));
}

/// @return whether there is more
bool Wire::ReadPacket() {
    std::array<char, kLargestSlice> bytes;
    const std::size_t count = ReadSlice(bytes.data());
    if (count == 0) return false;
    const bool goesOn = !ahead_.empty() || stream_->HoldsMore();
    QElapsedTimer turn;
    turn.start();
    reads_ = true;
    listener_.onData({bytes.data(), count}, goesOn);
    reads_ = false;
    slice_ = std::clamp(turn.hasExpired(kMomentMs) ? slice_ / 4 : slice_ * 2, kSmallestSlice, kLargestSlice);
    return goesOn;
}

std::size_t Wire::ReadSlice(char* bytes) {
    if (ahead_.empty()) return stream_->Read(bytes, slice_);
    const std::size_t count = ahead_.copy(bytes, slice_);
    ahead_.erase(0, count);
    return count;
}

/// What arrives while it may not be read is kept, so that its end shows all the same.
void Wire::ReadAhead() {
    std::array<char, kLargestSlice> bytes;
    while (ahead_.size() < kBufferLimit) {
        const std::size_t count = stream_->Read(bytes.data(), bytes.size());
        if (count == 0) return;
        ahead_.append(bytes.data(), count);
    }
    stream_->ListenForMore(false);
}

void Wire::ReadLater() {
    if (std::exchange(waits_, true)) return;
    QTimer::singleShot(0, this, [this] {
        waits_ = false;
        Read();
    });
}

void Wire::EndLater(const SocketError& error) {
    QTimer::singleShot(0, this, [this, error] { End(error); });
}

void Wire::End(const std::optional<SocketError>& error) {
    tmrSilence_.stop();
    tmrAnswer_.stop();
    if (!std::exchange(ending_, true)) Drain(error);
}

/// What the other side sent before the end still counts, as if the connection stood until it is read.
void Wire::Drain(const std::optional<SocketError>& error) {
    if (!over_ && !full_ && !ahead_.empty()) {
        ReadPacket();
        QTimer::singleShot(0, this, [this, error] { Drain(error); });
    } else if (!std::exchange(over_, true)) {
        listener_.onEnd(error);
    }
}

SocketError Wire::Failure(int number, std::string_view what, int systemCode) const {
    return {number, std::string(what), systemCode, FromUtf8(host_)};
}

/// @return nothing for an end in order
std::optional<SocketError> Wire::AsError(int end) const {
    if (end == 0) return std::nullopt;
    if (end == ETIMEDOUT) return Failure(QAbstractSocket::SocketTimeoutError, SystemText(end));
    if (end != ECONNRESET) return Failure(QAbstractSocket::NetworkError, SystemText(end));
    return Failure(QAbstractSocket::RemoteHostClosedError, "the connection was broken off", ECONNRESET);
}

void Wire::Close() {
    over_ = true;
    tmrSilence_.stop();
    tmrAnswer_.stop();
    if (socket_) {
        socket_->disconnect(this);
        socket_->abort();
    }
    const bool parts = stream_ && !full_ && !stream_->End();
    if (parts) stream_->Send();
    if (parts && UnsentBytes() > 0) {
        stream_->ListenForMore(false);
        QTimer::singleShot(kPartingTime, this, &QObject::deleteLater);
    } else {
        if (stream_) stream_->Close();
        deleteLater();  // later, here and above: this may be called out of one of the stream's calls
    }
}

// --- a socket over all its connections ----------------------------------------------------------------------------

void LineSocket::Connect(const std::string& host, int port, Wire::Listener listener) {
    Use(new QTcpSocket, std::move(listener));
    wire_->Connect(host, port);
}

void LineSocket::TakeOver(QTcpSocket* accepted, Wire::Listener listener) { Use(accepted, std::move(listener)); }

void LineSocket::Use(QTcpSocket* socket, Wire::Listener listener) {
    Close();
    wire_ = new Wire(socket, std::move(listener), owner_);
}

void LineSocket::Close() {
    if (wire_) std::exchange(wire_, nullptr)->Close();
}

void LineSocket::Write(std::string_view bytes) {
    if (wire_) wire_->Write(bytes);
}

void LineSocket::Resume() {
    if (wire_) wire_->Resume();
}
