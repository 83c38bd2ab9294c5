#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

/// Calls for another try after a lost or refused connection, with growing pauses that vary a little, so that many
/// bots don't come back at the same moment, and a bot that is thrown out at once does not come back at once for ever.
class Reconnector final : public QObject {
  public:
    /// Whether the first try after a steady session comes without a pause: a script's does, for that is its own wish.
    enum class First { AtOnce, AfterAPause };

    /// @param draw    a uniform draw, at least 0 and below 1
    /// @param tryNow  called at the end of each pause
    Reconnector(std::function<double()> draw, std::function<void()> tryNow, QObject* parent);

    /// Begins the pause before the next try.
    /// @return its length in milliseconds; 0 when it is the caller's to try at once
    int Schedule(First first);

    /// What is left of the pause; not above 0 when there is none.
    int PauseLeftMs() const { return timer_.remainingTime(); }

    /// A session is over that has stood for so long. After a steady one the next pauses are short again.
    void SessionEnded(std::chrono::milliseconds stood);

    /// The try that was to come is called off.
    void EndPause() { timer_.stop(); }

    /// Calls it off, and begins with short pauses again.
    void Forget();

    /// The pause before try n, counted from 0: none, then 1 second, doubled each time up to 5 minutes, and up to a
    /// quarter more.
    static int PauseMs(int attempt, double draw);

  private:
    std::function<double()> draw_;
    QTimer timer_{this};
    int attempt_ = 0;
};
