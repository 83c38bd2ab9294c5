#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string_view>

/// The connection of a guest that has come to the dream. It keeps nothing in store for one that is silent and reads
/// what it is sent, so that a dream may have very many.
class GuestSocket final : public QObject {
  public:
    /// Called from the event loop.
    struct Listener {
        std::function<void(std::string_view bytes)> onData;  ///< not more than 4 KiB at a time
        std::function<void()> onEnd;                         ///< once: it is closed, by either side
    };

    /// @param descriptor  of a connected socket, which it owns from now on
    GuestSocket(qintptr descriptor, Listener listener, QObject* parent);
    ~GuestSocket() override;

    /// Sends what the system takes; the rest waits for the guest to read.
    void Send(std::string_view bytes);
    qsizetype UnsentBytes() const { return unsent_.size(); }

    /// Sends what waits, and closes.
    void CloseWhenSent();
    void Close();

  private:
    int descriptor_;
    Listener listener_;
    QSocketNotifier readable_;
    std::unique_ptr<QSocketNotifier> writable_;  ///< since the guest has been slow for the first time
    QByteArray unsent_;
    bool closing_ = false, closed_ = false;

    void Read();
    void SendUnsent();
    void AwaitRoom();
    qsizetype SendNow(std::string_view bytes) const;
};
