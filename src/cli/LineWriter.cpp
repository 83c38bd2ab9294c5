#include "cli/LineWriter.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace {

/// How much is written at once: few system calls for many short lines.
constexpr std::size_t kPiece = 65'536;

/// For a descriptor that another program has made one that doesn't wait by itself.
void WaitUntilWritable(int descriptor) {
    pollfd waited{descriptor, POLLOUT, 0};
    ::poll(&waited, 1, -1);
}

/// The first lines of a queue, as many as make a piece.
std::string TakePiece(std::deque<std::string>& lines) {
    std::string piece = std::move(lines.front());
    lines.pop_front();
    while (!lines.empty() && piece.size() + lines.front().size() <= kPiece) {
        piece += lines.front();
        lines.pop_front();
    }
    return piece;
}

}  // namespace

LineWriter::~LineWriter() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void LineWriter::Put(std::string line) {
    std::unique_lock lock(mutex_);
    AwaitRoomFor(line, lock);
    if (givenUp_) return;
    if (!HasRoomFor(line)) {
        ++dropped_;
        return;
    }
    TellDropped();
    Queue(std::move(line));
    if (waitingBytes_ >= kPiece) changed_.notify_all();
}

void LineWriter::WakeUp() {
    const std::lock_guard lock(mutex_);
    if (!waiting_.empty()) changed_.notify_all();
}

bool LineWriter::HasRoomFor(const std::string& line) const {
    return waiting_.size() < kMostLines && waitingBytes_ + line.size() <= kMostBytes;
}

void LineWriter::AwaitRoomFor(const std::string& line, std::unique_lock<std::mutex>& lock) {
    if (stuck_ || givenUp_ || HasRoomFor(line)) return;
    changed_.notify_all();
    stuck_ = !changed_.wait_for(lock, kPatience, [&] { return givenUp_ || HasRoomFor(line); });
}

void LineWriter::Queue(std::string line) {
    waitingBytes_ += line.size();
    waiting_.push_back(std::move(line));
}

void LineWriter::TellDropped() {
    if (dropped_ == 0) return;
    const std::string count = std::to_string(std::exchange(dropped_, 0));
    Queue("… " + count + (count == "1" ? " line was" : " lines were") + " not shown, since nobody read them\n");
}

bool LineWriter::Finish(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    changed_.notify_all();
    return changed_.wait_for(lock, patience, [this] { return givenUp_ || (waiting_.empty() && !writing_); });
}

void LineWriter::WriteLines() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return !waiting_.empty() || ending_; });
        if (waiting_.empty()) return;
        const std::string piece = TakePiece(waiting_);
        writing_ = true;
        lock.unlock();
        const bool written = Write(piece);
        lock.lock();
        writing_ = false;
        waitingBytes_ -= piece.size();
        stuck_ = false;
        if (waiting_.empty()) TellDropped();
        givenUp_ = !written;
        if (givenUp_) waiting_.clear();
        changed_.notify_all();
        if (givenUp_) return;
    }
}

bool LineWriter::Write(const std::string& text) const {
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto count = ::write(descriptor_, rest.data(), rest.size());
        if (count >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EAGAIN) {
            WaitUntilWritable(descriptor_);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}
