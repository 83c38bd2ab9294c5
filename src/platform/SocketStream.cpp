#include "platform/SocketStream.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/LinuxTcp.h"

SocketStream::SocketStream(qintptr descriptor, Listener listener)
    : socket_(::fcntl(static_cast<int>(descriptor), F_DUPFD_CLOEXEC, 0)),
      listener_(std::move(listener)),
      readable_(QSocketNotifier::Read),
      writable_(QSocketNotifier::Write) {
    if (!IsOpen()) return;
    QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { listener_.onReadable(); });
    QObject::connect(&writable_, &QSocketNotifier::activated, &writable_, [this] { OnWritable(); });
    readable_.setSocket(socket_.Number());
    writable_.setSocket(socket_.Number());
    readable_.setEnabled(true);
}

std::size_t SocketStream::Read(char* bytes, std::size_t most) {
    if (!IsOpen() || end_) return 0;
    const auto count = ::recv(socket_.Number(), bytes, most, 0);
    if (count > 0) return static_cast<std::size_t>(count);
    const bool nothingYet = count < 0 && (errno == EAGAIN || errno == EINTR);
    if (!nothingYet || broken_) end_ = count < 0 && !nothingYet ? errno : MannerOfEnd();
    if (end_) ListenForMore(false);
    return 0;
}

/// Who sends learns of a reset first, and then who reads does not. Behind an orderly end it only says that nobody
/// there reads any more.
int SocketStream::MannerOfEnd() const { return broken_.value_or(EPIPE) == EPIPE ? 0 : *broken_; }

bool SocketStream::HoldsMore() const { return WaitingBytes(socket_.Number()) > 0; }

void SocketStream::ListenForMore(bool listens) { readable_.setEnabled(listens && IsOpen() && !end_); }

void SocketStream::Write(std::string_view bytes) {
    if (!IsOpen() || broken_) return;
    unsent_.append(bytes);
    writable_.setEnabled(true);
}

void SocketStream::Send() {
    if (unsent_.empty()) return;
    Push();
    waits_ = waits_ || !unsent_.empty() || broken_;
    writable_.setEnabled(waits_);
}

void SocketStream::OnWritable() {
    Push();
    if (broken_) {
        writable_.setEnabled(false);  // told once: the reader may have to wait for its turn
        return listener_.onReadable();
    }
    waits_ = !unsent_.empty();
    if (!waits_) unsent_ = std::string();  // it may have been much
    writable_.setEnabled(waits_);
    listener_.onSent();
}

void SocketStream::Push() {
    if (unsent_.empty()) return;
    const auto count = ::send(socket_.Number(), unsent_.data(), unsent_.size(), MSG_NOSIGNAL);
    if (count >= 0) {
        unsent_.erase(0, static_cast<std::size_t>(count));
    } else if (errno != EAGAIN && errno != EINTR) {
        broken_ = errno;
        unsent_.clear();
    }
}

void SocketStream::Close() {
    if (!IsOpen()) return;
    readable_.setEnabled(false);
    writable_.setEnabled(false);
    // What has arrived and nobody reads would make a reset of the end, and the other side lose what it has not read.
    constexpr int kMostPieces = 64;
    std::array<char, std::size_t{16} * 1024> unread;
    for (int piece = 0; piece < kMostPieces && Read(unread.data(), unread.size()) > 0; ++piece) {
    }
    socket_ = Descriptor();
}
