#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

/// Writes lines to a descriptor from a thread of its own, so that nobody else waits long for who reads them. Who reads
/// as fast as a disk or a program does loses nothing in a flood: a line for which there is no room waits a moment for
/// it. When nothing is read in that moment, lines are dropped, and as soon as there is room again it is said how many.
/// A descriptor that can't be written any more is given up without a word. The descriptor is left as it is: O_NONBLOCK
/// would change it for every program that shares it.
class LineWriter {
  public:
    explicit LineWriter(int descriptor) : descriptor_(descriptor), thread_([this] { WriteLines(); }) {}

    /// Writes what still waits, however long that takes; see Finish.
    ~LineWriter();
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    /// Puts a line behind those that wait; they are written when a good deal waits, or WakeUp says so.
    /// @param line  with its line end
    void Put(std::string line);

    /// Has what waits written now: once for many lines, since each time the other thread must come to life.
    void WakeUp();

    /// How long a line waits for room; once in vain, none waits again before something has been read.
    static constexpr std::chrono::milliseconds kPatience{100};

    /// Waits until all is written.
    /// @return false when that takes longer than the time given
    bool Finish(std::chrono::milliseconds patience);

    /// How much may wait: what a bot prints in a long while, and too little to matter to the computer.
    static constexpr std::size_t kMostLines = 10'000;
    static constexpr std::size_t kMostBytes = std::size_t{1024} * 1024;

  private:
    const int descriptor_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::string> waiting_;
    std::size_t waitingBytes_ = 0;  ///< the line that is being written included
    std::size_t dropped_ = 0;
    bool writing_ = false, ending_ = false, givenUp_ = false;
    bool stuck_ = false;  ///< nothing was read while a line waited for room
    std::thread thread_;

    bool HasRoomFor(const std::string& line) const;
    void AwaitRoomFor(const std::string& line, std::unique_lock<std::mutex>& lock);
    void Queue(std::string line);
    void TellDropped();
    void WriteLines();
    bool Write(const std::string& text) const;
};
