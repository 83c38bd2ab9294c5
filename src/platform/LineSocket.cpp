#include "platform/LineSocket.h"

#include <utility>

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
