#pragma once

#include <QByteArray>
#include <random>

/// What a bot is sent, and what it has to send back, each line of it ended by a line feed.
struct Batch {
    QByteArray lines, answers;
    int lineCount = 0, answerCount = 0;
};

/// Lines as the game sends them in a busy place, drawn alike in every run. The bot's script has to answer a whisper
/// with its own words; the dream's request to be loaded every bot answers.
class GameLines {
  public:
    /// Ends with a whisper, so that whoever has all answers knows that all lines were read.
    Batch Next();

  private:
    static constexpr int kLinesPerBatch = 2'000;

    std::mt19937 random_{20};
    int whispers_ = 0;

    int Draw(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    QByteArray Name() { return "Furre" + QByteArray::number(Draw(500)); }
    QByteArray Pair() { return {2, static_cast<char>(' ' + Draw(40))}; }
    QByteArray Visitors();
    QByteArray Line();
    void AddWhisper(Batch& batch);
};

/// The trigger that answers the whispers, for the front of a script.
inline constexpr char kAnsweringTrigger[] =
    "(0:6) When somebody whispers\r\n (1:4) something like {sync *},\r\n     (5:12) whisper back {[message]}.\r\n";
