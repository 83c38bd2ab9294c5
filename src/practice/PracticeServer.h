#pragma once

#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTimer>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "practice/Dream.h"
#include "practice/Tour.h"

class GuestSocket;

/// The computer's own clock, and a random draw.
DreamPorts MachinePorts();

/// How the practice dream is to run.
struct PracticeSettings {
    Tour tour;  ///< may have no steps
    DreamPorts ports = MachinePorts();
    int secondMs = 1000;  ///< how long a second of the tour takes, in milliseconds; 0: only PassSecond passes one
    std::size_t mostClients = kMostFurres;  ///< no more, where the system lets a program have few connections
};

/// The practice dream on a socket of this computer, reachable from nowhere else. Everything happens on the thread
/// that has made it, and nothing that a client sends makes it throw.
class PracticeServer : public QObject {
    Q_OBJECT

  public:
    explicit PracticeServer(PracticeSettings settings = {}, QObject* parent = nullptr);
    ~PracticeServer() override;

    struct Listening {
        quint16 port = 0;  ///< 0 when it failed
        QString fault;     ///< why, in plain words
    };

    /// Opens the dream, on 127.0.0.1 only, and starts the tour's clock.
    /// @param port  0: any that is free
    Listening Listen(quint16 port);

    /// A person takes part as a furre of this name; what it hears comes in PersonHears.
    /// @return false when the name is taken or can't be used, or there is such a person already
    bool AddPerson(std::string_view name);

    /// A line typed by that person, 8-bit text. "/NAME TEXT" whispers; "-" shouts, ":" emotes, "`" sends the rest as
    /// a raw command, and anything else is said.
    void TypeAsPerson(std::string_view line);

    /// Passes one second of the tour.
    void PassSecond();

  signals:
    /// The last step of the tour has been played. Never emitted when the tour has none.
    void TourEnded();

    /// A line that the person's furre hears, as clients show it: without the mark of text lines, "|" made blanks.
    void PersonHears(const QString& line);

  private:
    struct Client {
        GuestSocket* socket = nullptr;
        QByteArray unfinished;  ///< the begin of a line whose rest is still to come
        QByteArray unsent;      ///< what it is told by all that happens in one turn of the event loop
        bool last = false;      ///< it is to go then
    };

    struct Listener final : QTcpServer {
        std::function<void(qintptr descriptor)> onConnection;
        void incomingConnection(qintptr descriptor) override { onConnection(descriptor); }
    };

    void TakeConnection(qintptr descriptor);
    void TurnAway(qintptr descriptor);
    void HearBytes(FurreId furre, std::string_view bytes);
    void Forget(FurreId furre);
    void Deliver();
    void DeliverToPerson(const std::string& line);
    void Tell(Client& client, const Delivery& delivery);
    void SendLater(FurreId furre);
    void SendAll();
    static void Write(Client& client);
    void Guarded(const std::function<void()>& work);

    const std::size_t mostClients_;
    Dream dream_;
    TourPlayer tour_;
    Listener listener_;
    QTimer second_;
    std::map<FurreId, Client> clients_;
    std::vector<FurreId> told_;  ///< that something waits to be sent to
    std::optional<FurreId> person_;
};
