#include "practice/PracticeServer.h"

#include <QDateTime>
#include <QHostAddress>
#include <QRandomGenerator>
#include <QTcpSocket>
#include <exception>
#include <map>
#include <vector>

#include "text/Text.h"

namespace {

/// A client that sends this much without a line feed has its line cut, one that sends a lot is heard bit by bit, and
/// one that doesn't read what it is sent is let go: none of them may fill the computer's memory.
constexpr qsizetype kLongestUnfinished = 16'384;
constexpr qint64 kHeardAtOnce = 4'096;
constexpr qint64 kMostUnread = 16'777'216;

LocalTime ComputerTime() {
    const QDateTime now = QDateTime::currentDateTime();
    return {now.date().year(), now.date().month(),  now.date().day(),
            now.time().hour(), now.time().minute(), now.time().second()};
}

/// The command line that a line typed at the keyboard stands for, under the rules of the bot's own console: "/NAME
/// TEXT" whispers, "-" and ":" lines go out as they stand, "`" sends the rest, and anything else is said.
std::string CommandOfTypedLine(std::string_view typed) {
    if (typed.empty()) return {};
    std::string rest(typed.substr(1));
    switch (typed.front()) {
        case '-':
        case ':':
            return std::string(typed);
        case '`':
            return rest;
        case '/':
            return "wh " + rest;
        default:
            return "\"" + std::string(typed);
    }
}

}  // namespace

DreamPorts MachinePorts() {
    return {ComputerTime, [] { return QRandomGenerator::global()->generateDouble(); }};
}

PracticeServer::PracticeServer(PracticeSettings settings, QObject* parent)
    : QObject(parent), dream_(std::move(settings.ports)), tour_(std::move(settings.tour), dream_) {
    second_.setInterval(settings.secondMs);
    connect(&listener_, &QTcpServer::newConnection, this, [this] { Guarded([this] { TakeConnections(); }); });
    connect(&second_, &QTimer::timeout, this, &PracticeServer::PassSecond);
}

/// The sockets go when nothing is left here that their last signals could reach.
PracticeServer::~PracticeServer() {
    for (QTcpSocket* const socket : clients_.keys()) socket->disconnect(this);
}

PracticeServer::Listening PracticeServer::Listen(quint16 port) {
    if (!listener_.listen(QHostAddress::LocalHost, port)) return {0, listener_.errorString()};
    if (second_.interval() > 0 && !tour_.IsOver()) second_.start();
    return {listener_.serverPort(), {}};
}

bool PracticeServer::AddPerson(std::string_view name) {
    if (person_) return false;
    person_ = dream_.Arrive(name);
    Deliver();
    return person_.has_value();
}

void PracticeServer::TypeAsPerson(std::string_view line) {
    if (!person_) return;
    Guarded([&] { dream_.Hear(*person_, CommandOfTypedLine(line)); });
}

void PracticeServer::PassSecond() {
    if (tour_.IsOver()) return;
    Guarded([this] { tour_.PassSecond(); });
    if (!tour_.IsOver()) return;
    second_.stop();
    emit TourEnded();
}

void PracticeServer::TakeConnections() {
    while (QTcpSocket* const socket = listener_.nextPendingConnection()) {
        const auto furre = dream_.Connect();
        if (!furre) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        socket->setReadBufferSize(kHeardAtOnce);
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);  // short lines are not to wait for longer ones
        clients_.insert(socket, {*furre, {}});
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Guarded([&] { ReadFrom(socket); }); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] { Guarded([&] { Forget(socket); }); });
    }
}

void PracticeServer::ReadFrom(QTcpSocket* socket) {
    const QByteArray bytes = socket->readAll();
    const auto client = clients_.find(socket);
    if (client != clients_.end()) HearLines(*client, bytes);
}

void PracticeServer::HearLines(Client& client, const QByteArray& bytes) {
    QList<QByteArray> lines = (client.unfinished + bytes).split('\n');
    client.unfinished = lines.takeLast().left(kLongestUnfinished);  // what stands behind the last line feed
    for (const QByteArray& line : lines) {
        dream_.Hear(client.furre, {line.constData(), static_cast<std::size_t>(line.size())});
    }
}

void PracticeServer::Forget(QTcpSocket* socket) {
    const auto client = clients_.find(socket);
    if (client == clients_.end()) return;
    dream_.Leave(client->furre);
    clients_.erase(client);
    socket->deleteLater();
}

/// What one furre is told at once goes out in one piece: clients may read each piece for itself.
void PracticeServer::Deliver() {
    struct Piece {
        QByteArray bytes;
        bool last = false;
    };
    std::map<FurreId, Piece> pieces;
    for (const Delivery& delivery : dream_.TakeDeliveries()) {
        if (delivery.furre == person_) DeliverToPerson(delivery.line);
        Piece& piece = pieces[delivery.furre];
        piece.bytes.append(delivery.line.data(), static_cast<qsizetype>(delivery.line.size())).append('\n');
        piece.last = piece.last || delivery.last;
    }
    // Over a copy: a client that is let go takes itself off the list meanwhile.
    for (QTcpSocket* const socket : clients_.keys()) {
        const auto piece = pieces.find(clients_.value(socket).furre);
        if (piece != pieces.end()) Write(socket, piece->second.bytes, piece->second.last);
    }
}

void PracticeServer::Write(QTcpSocket* socket, const QByteArray& bytes, bool last) {
    socket->write(bytes);
    if (socket->bytesToWrite() > kMostUnread) return socket->abort();
    if (last) socket->disconnectFromHost();
}

void PracticeServer::DeliverToPerson(const std::string& line) {
    if (line.starts_with('(')) {
        emit PersonHears(QString::fromStdString(ToUtf8(BarsToBlanks(std::string_view(line).substr(1)))));
    }
}

/// Every slot works in here: no exception may leave one, and a client's bad line is nobody else's trouble.
void PracticeServer::Guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& fault) {
        qWarning("practice dream: %s", fault.what());
    }
    Deliver();
}
