#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

/// Calls for another try after a lost or refused connection, with growing pauses that vary a little, so that many
/// bots don't come back at the same moment.
class Reconnector final : public QObject {
    Q_OBJECT

  public:
    /// @param draw  a uniform draw, at least 0 and below 1
    explicit Reconnector(std::function<double()> draw, QObject* parent = nullptr);

    /// Begins the next pause, a short one again when the session before it has stood for a minute.
    /// @param stood  how long that session has stood; zero when it never came about
    /// @return the pause's length in milliseconds
    int Schedule(std::chrono::milliseconds stood);

    /// No more tries; the next pause is a short one again.
    void Stop();

    /// The pause before try n, counted from 0: 5 seconds, doubled each time up to 5 minutes, and up to a quarter more.
    static int PauseMs(int attempt, double draw);

  signals:
    void TryNow();

  private:
    std::function<double()> draw_;
    QTimer timer_{this};
    int attempt_ = 0;
};
