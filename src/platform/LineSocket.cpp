#include "platform/LineSocket.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "text/Text.h"

namespace {

/// How much of a flood is handled at a time, before the event loop gets its turn: less of it, down to a few lines, as
/// long as a slow script takes longer than a moment, for which signals, timers and the user wait.
constexpr qint64 kLargestSlice = qint64{4} * 1024, kFirstSlice = 512, kSmallestSlice = 64;
constexpr qint64 kMomentMs = 100;

/// How long a connection that is closed may take to send what was written before.
constexpr std::chrono::seconds kPartingTime{5};

constexpr int kLastPort = 65535;

}  // namespace

Wire::Wire(QTcpSocket* socket, Listener listener, QObject* parent)
    : QObject(parent), socket_(socket), listener_(std::move(listener)), slice_(kFirstSlice) {
    socket_->setParent(this);
    socket_->setReadBufferSize(kBufferLimit);
    tmrSilence_.setObjectName("tmrSilence");
    tmrAnswer_.setObjectName("tmrAnswer");
    for (QTimer* const timer : {&tmrSilence_, &tmrAnswer_}) timer->setSingleShot(true);
    connect(&tmrSilence_, &QTimer::timeout, this, [this] { listener_.onSilence(); });
    connect(&tmrAnswer_, &QTimer::timeout, this, [this] {
        const std::string seconds = std::to_string(kAnswerWithin.count());
        End(Failure(QAbstractSocket::SocketTimeoutError, "there was no answer within " + seconds + " seconds"));
    });
    connect(socket_, &QTcpSocket::readyRead, this, &Wire::Read);
    connect(socket_, &QTcpSocket::bytesWritten, this, [this] {
        if (!over_) listener_.onWritten();
    });
    connect(socket_, &QTcpSocket::disconnected, this,
            [this] { End(watch_ && watch_->WasReset() ? std::optional(BrokenOff()) : std::nullopt); });
    connect(socket_, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        if (error == QAbstractSocket::RemoteHostClosedError) return;  // told by disconnected, which knows the manner
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
    watch_ = std::make_unique<EndWatch>(socket_->socketDescriptor());
}

bool Wire::IsConnected() const { return socket_->state() == QAbstractSocket::ConnectedState || draining_; }

void Wire::Write(std::string_view bytes) {
    if (full_ || socket_->state() != QAbstractSocket::ConnectedState) return;
    socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (socket_->bytesToWrite() <= kBufferLimit) return;
    Flush();
    if (socket_->bytesToWrite() <= kBufferLimit) return;
    full_ = true;
    EndLater(Failure(0, "more than 1 MiB of what was sent has not been read"));
}

/// Whoever writes is in the middle of something, so what shows now is told later.
void Wire::Flush() {
    {
        const QSignalBlocker quiet(socket_);
        socket_->flush();
    }
    if (socket_->state() != QAbstractSocket::ConnectedState) return EndLater(BrokenOff());
    QTimer::singleShot(0, this, [this] {
        if (!over_) listener_.onWritten();
    });
}

void Wire::Read() {
    if (waits_ || over_ || socket_->bytesAvailable() == 0 || !listener_.mayRead()) return;
    ReadPacket();
    // The rest of a flood waits until everything else has had its turn.
    if (over_ || socket_->bytesAvailable() == 0) return;
    waits_ = true;
    QTimer::singleShot(0, this, [this] {
        waits_ = false;
        Read();
    });
}

void Wire::ReadPacket() {
    const QByteArray packet = socket_->read(slice_);
    const bool goesOn = socket_->bytesAvailable() > 0 || WaitingBytes(socket_->socketDescriptor()) > 0;
    QElapsedTimer turn;
    turn.start();
    listener_.onData({packet.data(), static_cast<std::size_t>(packet.size())}, goesOn);
    slice_ = std::clamp(turn.hasExpired(kMomentMs) ? slice_ / 4 : slice_ * 2, kSmallestSlice, kLargestSlice);
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
    draining_ = !over_ && !full_ && socket_->bytesAvailable() > 0;
    if (draining_) {
        ReadPacket();
        QTimer::singleShot(0, this, [this, error] { Drain(error); });
    } else if (!std::exchange(over_, true)) {
        listener_.onEnd(error);
    }
}

SocketError Wire::Failure(int number, std::string_view what, int systemCode) const {
    return {number, std::string(what), systemCode, FromUtf8(host_)};
}

SocketError Wire::BrokenOff() const {
    return Failure(QAbstractSocket::RemoteHostClosedError, "the connection was broken off", ECONNRESET);
}

void Wire::Close() {
    over_ = true;
    watch_.reset();
    socket_->disconnect(this);
    tmrSilence_.stop();
    tmrAnswer_.stop();
    if (!full_ && socket_->state() == QAbstractSocket::ConnectedState) {
        socket_->flush();
        // Later, here and below: this may be called out of one of the socket's signals.
        connect(socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
        QTimer::singleShot(kPartingTime, this, &QObject::deleteLater);
        socket_->disconnectFromHost();
    } else {
        socket_->abort();
        deleteLater();
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
