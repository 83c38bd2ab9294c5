#include "practice/PracticeServer.h"

#include <QDateTime>
#include <QHostAddress>
#include <QRandomGenerator>
#include <exception>
#include <utility>

#include "practice/GuestSocket.h"
#include "practice/modDreamLines.h"
#include "text/Text.h"

namespace {

/// A client that sends this much without a line feed has its line cut, and one that doesn't read what it is sent is let
/// go: none of them may fill the computer's memory.
constexpr qsizetype kLongestUnfinished = 16'384;
constexpr qsizetype kMostUnread = 12'582'912;

/// More than this does not wait to be sent until all else has had its turn.
constexpr qsizetype kLongestPiece = 4'096;

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
    : QObject(parent),
      mostClients_(settings.mostClients),
      dream_(std::move(settings.ports)),
      tour_(std::move(settings.tour), dream_) {
    second_.setInterval(settings.secondMs);
    listener_.onConnection = [this](qintptr descriptor) { Guarded([&] { TakeConnection(descriptor); }); };
    connect(&second_, &QTimer::timeout, this, &PracticeServer::PassSecond);
}

PracticeServer::~PracticeServer() = default;

PracticeServer::Listening PracticeServer::Listen(quint16 port) {
    listener_.setListenBacklogSize(kMostFurres);  // many bots may begin to connect before the dream has its turn
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

void PracticeServer::TakeConnection(qintptr descriptor) {
    const auto furre = clients_.size() < mostClients_ ? dream_.Connect() : std::nullopt;
    if (!furre) return TurnAway(descriptor);
    clients_[*furre].socket =
        new GuestSocket(descriptor,
                        {[this, furre = *furre](std::string_view bytes) { Guarded([&] { HearBytes(furre, bytes); }); },
                         [this, furre = *furre] { Guarded([&] { Forget(furre); }); }},
                        this);
}

void PracticeServer::TurnAway(qintptr descriptor) {
    auto* const socket = new GuestSocket(descriptor, {[](std::string_view) {}, [] {}}, this);
    const std::string why = "The practice dream is full: it holds " + std::to_string(mostClients_) + " furres.";
    socket->Send(modDreamLines::Remark(why) + "\n");
    socket->deleteLater();
}

void PracticeServer::HearBytes(FurreId furre, std::string_view bytes) {
    const auto client = clients_.find(furre);
    if (client == clients_.end()) return;
    QByteArray& unfinished = client->second.unfinished;
    QByteArrayList lines = unfinished.append(bytes.data(), static_cast<qsizetype>(bytes.size())).split('\n');
    unfinished = lines.takeLast().left(kLongestUnfinished);  // what stands behind the last line feed
    for (const QByteArray& line : lines) dream_.Hear(furre, {line.constData(), static_cast<std::size_t>(line.size())});
}

void PracticeServer::Forget(FurreId furre) {
    const auto client = clients_.extract(furre);
    if (client.empty()) return;
    dream_.Leave(furre);
    client.mapped().socket->deleteLater();
}

/// What a furre is told goes out at the end of this turn: in a full dream many things happen in one. Only a long list
/// goes before, cut behind a line.
void PracticeServer::Deliver() {
    for (const Delivery& delivery : dream_.TakeDeliveries()) {
        if (delivery.furre == person_) DeliverToPerson(delivery.line);
        const auto client = clients_.find(delivery.furre);
        if (client != clients_.end()) Tell(client->second, delivery);
    }
}

void PracticeServer::Tell(Client& client, const Delivery& delivery) {
    if (client.unsent.isEmpty()) SendLater(delivery.furre);
    client.unsent.append(delivery.line.data(), static_cast<qsizetype>(delivery.line.size())).append('\n');
    client.last = client.last || delivery.last;
    if (client.unsent.size() >= kLongestPiece) Write(client);
}

void PracticeServer::SendLater(FurreId furre) {
    if (told_.empty()) QMetaObject::invokeMethod(this, &PracticeServer::SendAll, Qt::QueuedConnection);
    told_.push_back(furre);
}

void PracticeServer::SendAll() {
    for (const FurreId furre : std::exchange(told_, {})) {
        const auto found = clients_.find(furre);
        if (found == clients_.end()) continue;
        Client& client = found->second;
        Write(client);
        if (client.socket->UnsentBytes() > kMostUnread) {
            client.socket->Close();
        } else if (client.last) {
            client.socket->CloseWhenSent();
        }
    }
}

void PracticeServer::Write(Client& client) {
    const QByteArray bytes = std::exchange(client.unsent, {});
    client.socket->Send({bytes.constData(), static_cast<std::size_t>(bytes.size())});
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
