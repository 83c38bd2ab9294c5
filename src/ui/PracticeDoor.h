#pragma once

#include <QObject>
#include <memory>
#include <string>

class PracticeServer;
class QtHost;

/// Where the address list's practice dream leads; no host has this name.
inline constexpr char kPracticeAddress[] = "practice dream";

/// Leads a bot that connects to the practice dream into one on this computer, opened anew each time, with the tour
/// beside the bot's profile.
class PracticeDoor final : public QObject {
    Q_OBJECT

  public:
    explicit PracticeDoor(QtHost& host);
    ~PracticeDoor() override;

  signals:
    /// The dream can't be opened.
    void Refused(const QString& line);

    /// The tour can't be read as it stands; the dream is open without it.
    void TourRefused(const QString& line);

  private:
    QtHost& host_;
    std::unique_ptr<PracticeServer> server_;

    int Open();
};
