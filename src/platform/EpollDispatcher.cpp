#include "platform/EpollDispatcher.h"

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

/// What each type of notifier waits for, by its number. A broken connection tells all of them.
constexpr std::array<std::uint32_t, 3> kAwaited = {EPOLLIN, EPOLLOUT, EPOLLPRI};
constexpr std::uint32_t kBroken = EPOLLERR | EPOLLHUP;

class EpollDispatcher final : public QAbstractEventDispatcher {
  public:
    EpollDispatcher() { Watch(wakeUp_, EPOLLIN, EPOLL_CTL_ADD); }
    ~EpollDispatcher() override {
        ::close(wakeUp_);
        ::close(epoll_);
    }

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override {
        interrupted_ = false;
        emit awake();
        QCoreApplication::sendPostedEvents();
        const bool waits = flags.testFlag(QEventLoop::WaitForMoreEvents) && !interrupted_;
        if (waits) emit aboutToBlock();
        const bool heard = TakeSocketEvents(waits ? MillisecondsToWait() : 0, flags);
        if (waits) emit awake();
        const bool fired = !flags.testFlag(QEventLoop::X11ExcludeTimers) && FireTimers();
        return heard || fired;
    }

    void registerSocketNotifier(QSocketNotifier* notifier) override { ChangeNotifier(notifier, notifier); }
    void unregisterSocketNotifier(QSocketNotifier* notifier) override { ChangeNotifier(notifier, nullptr); }

    void registerTimer(int id, qint64 interval, Qt::TimerType type, QObject* object) override {
        const std::chrono::milliseconds pause(interval);
        timers_[id] = {Clock::now() + pause, pause, type, object};
        dues_.emplace(timers_[id].due, id);
    }
    bool unregisterTimer(int id) override {
        const auto timer = timers_.extract(id);
        return !timer.empty() && dues_.erase({timer.mapped().due, id}) > 0;
    }
    bool unregisterTimers(QObject* object) override {
        const QList<TimerInfo> all = registeredTimers(object);
        for (const TimerInfo& timer : all) unregisterTimer(timer.timerId);
        return !all.isEmpty();
    }
    QList<TimerInfo> registeredTimers(QObject* object) const override {
        QList<TimerInfo> found;
        for (const auto& [id, timer] : timers_) {
            if (timer.object == object) found.append({id, static_cast<int>(timer.interval.count()), timer.type});
        }
        return found;
    }
    int remainingTime(int id) override {
        const auto timer = timers_.find(id);
        return timer == timers_.end() ? -1 : MillisecondsUntil(timer->second.due);
    }

    /// May be called by any thread.
    void wakeUp() override {
        const std::uint64_t one = 1;
        if (!awake_.exchange(true) && ::write(wakeUp_, &one, sizeof one) < 0) awake_ = false;
    }
    void interrupt() override {
        interrupted_ = true;
        wakeUp();
    }

  private:
    struct Timer {
        Clock::time_point due;
        std::chrono::milliseconds interval{};
        Qt::TimerType type = Qt::CoarseTimer;
        QObject* object = nullptr;
        bool running = false;  ///< its object is at work on it, in an event loop of its own perhaps
    };
    using Notifiers = std::array<QSocketNotifier*, kAwaited.size()>;

    int epoll_ = ::epoll_create1(EPOLL_CLOEXEC), wakeUp_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::atomic<bool> awake_ = false, interrupted_ = false;
    std::unordered_map<int, Notifiers> notifiers_;  ///< by descriptor
    std::set<int> files_;                           ///< which epoll doesn't take, for they never keep anybody waiting
    std::map<int, Timer> timers_;
    std::set<std::pair<Clock::time_point, int>> dues_;

    bool Watch(int descriptor, std::uint32_t events, int operation) const {
        epoll_event event{};
        event.events = events;
        event.data.fd = descriptor;
        return ::epoll_ctl(epoll_, operation, descriptor, &event) == 0;
    }

    void ChangeNotifier(const QSocketNotifier* of, QSocketNotifier* notifier) {
        const int descriptor = static_cast<int>(of->socket());
        const bool isNew = !notifiers_.contains(descriptor);
        Notifiers& all = notifiers_[descriptor];
        all[of->type()] = notifier;
        std::uint32_t events = 0;
        for (std::size_t type = 0; type < all.size(); ++type) events |= all[type] ? kAwaited[type] : 0;
        if (events == 0) {
            Watch(descriptor, 0, EPOLL_CTL_DEL);
            files_.erase(descriptor);
            notifiers_.erase(descriptor);
        } else if (!Watch(descriptor, events, isNew ? EPOLL_CTL_ADD : EPOLL_CTL_MOD) && errno == EPERM) {
            files_.insert(descriptor);
        }
    }

    bool TakeSocketEvents(int wait, QEventLoop::ProcessEventsFlags flags) {
        std::array<epoll_event, 256> events;
        const int count =
            ::epoll_wait(epoll_, events.data(), static_cast<int>(events.size()), files_.empty() ? wait : 0);
        const bool told = !flags.testFlag(QEventLoop::ExcludeSocketNotifiers);
        for (int i = 0; i < count; ++i) {
            const epoll_event& event = events[static_cast<std::size_t>(i)];
            if (event.data.fd == wakeUp_) {
                TakeWakeUp();
            } else if (told) {
                TellNotifiers(event.data.fd, event.events);
            }
        }
        if (told) {
            for (const int file : std::set<int>(files_)) TellNotifiers(file, EPOLLIN | EPOLLOUT);
        }
        return count > 0;
    }

    void TakeWakeUp() {
        std::uint64_t count = 0;
        if (::read(wakeUp_, &count, sizeof count) > 0) awake_ = false;
    }

    /// Each is looked for anew, for what one is told may be the end of another.
    void TellNotifiers(int descriptor, std::uint32_t events) {
        for (std::size_t type = 0; type < kAwaited.size(); ++type) {
            const auto all = notifiers_.find(descriptor);
            if (all == notifiers_.end()) return;
            if (!all->second[type] || (events & (kAwaited[type] | kBroken)) == 0) continue;
            QEvent event(QEvent::SockAct);
            QCoreApplication::sendEvent(all->second[type], &event);
        }
    }

    static int MillisecondsUntil(Clock::time_point due) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(due - Clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    }

    /// -1 for ever.
    int MillisecondsToWait() const { return dues_.empty() ? -1 : MillisecondsUntil(dues_.begin()->first); }

    bool FireTimers() {
        const Clock::time_point now = Clock::now();
        std::vector<int> due;
        for (auto next = dues_.begin(); next != dues_.end() && next->first <= now; ++next) due.push_back(next->second);
        for (const int id : due) {
            const auto timer = timers_.find(id);
            if (timer != timers_.end() && timer->second.due <= now) Fire(id, timer->second, now);
        }
        return !due.empty();
    }

    /// Its next turn is counted from when this one was due, unless that is over by now.
    void Fire(int id, Timer& timer, Clock::time_point now) {
        dues_.erase({timer.due, id});
        timer.due += timer.interval;
        if (timer.due < now) timer.due = now + timer.interval;
        dues_.emplace(timer.due, id);
        if (std::exchange(timer.running, true)) return;
        QTimerEvent event(id);
        QCoreApplication::sendEvent(timer.object, &event);
        const auto still = timers_.find(id);
        if (still != timers_.end()) still->second.running = false;
    }
};

}  // namespace

void WaitByEpoll() { QCoreApplication::setEventDispatcher(new EpollDispatcher); }
