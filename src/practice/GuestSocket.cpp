#include "practice/GuestSocket.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace {

/// A guest that says a lot is heard bit by bit.
constexpr std::size_t kHeardAtOnce = 4'096;

/// Nothing that can be had without waiting; anything else is the end of the connection.
bool IsForLater(int error) { return error == EAGAIN || error == EWOULDBLOCK || error == EINTR; }

std::string_view View(const QByteArray& bytes) { return {bytes.constData(), static_cast<std::size_t>(bytes.size())}; }

}  // namespace

GuestSocket::GuestSocket(qintptr descriptor, Listener listener, QObject* parent)
    : QObject(parent),
      descriptor_(static_cast<int>(descriptor)),
      listener_(std::move(listener)),
      readable_(descriptor, QSocketNotifier::Read) {
    const int on = 1;  // short lines are not to wait for longer ones
    ::setsockopt(descriptor_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    connect(&readable_, &QSocketNotifier::activated, this, &GuestSocket::Read);
}

GuestSocket::~GuestSocket() {
    readable_.setEnabled(false);
    writable_.reset();
    ::close(descriptor_);
}

void GuestSocket::Read() {
    std::array<char, kHeardAtOnce> bytes;
    const auto count = ::recv(descriptor_, bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (count > 0) return listener_.onData({bytes.data(), static_cast<std::size_t>(count)});
    if (count == 0 || !IsForLater(errno)) Close();
}

void GuestSocket::Send(std::string_view bytes) {
    if (unsent_.isEmpty()) bytes.remove_prefix(static_cast<std::size_t>(SendNow(bytes)));
    unsent_.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
    AwaitRoom();
}

void GuestSocket::SendUnsent() {
    unsent_.remove(0, SendNow(View(unsent_)));
    AwaitRoom();
    if (unsent_.isEmpty() && closing_) Close();
}

/// How much the system has taken. Whether there is still somebody to send to, reading tells.
qsizetype GuestSocket::SendNow(std::string_view bytes) const {
    return std::max<qsizetype>(::send(descriptor_, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL), 0);
}

void GuestSocket::AwaitRoom() {
    const bool waits = !unsent_.isEmpty() && !closed_;
    if (waits && !writable_) {
        writable_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Write);
        connect(writable_.get(), &QSocketNotifier::activated, this, &GuestSocket::SendUnsent);
    }
    if (writable_) writable_->setEnabled(waits);
    if (unsent_.isEmpty()) unsent_ = {};  // with the memory that a list may have taken
}

void GuestSocket::CloseWhenSent() {
    closing_ = true;
    if (unsent_.isEmpty()) Close();
}

void GuestSocket::Close() {
    if (std::exchange(closed_, true)) return;
    readable_.setEnabled(false);
    if (writable_) writable_->setEnabled(false);
    listener_.onEnd();
}
