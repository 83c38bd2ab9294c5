#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QTimer>
#include <deque>
#include <vector>

/// The console's lines. What is appended shows with the next frame, so that a flood costs one repaint a frame; the
/// oldest lines go when there are more than the scroll-back keeps.
class ConsoleModel final : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit ConsoleModel(QObject* parent = nullptr);

    void Append(const QString& line);
    void Clear();

    /// How many lines are kept, at least 1.
    void SetScrollBack(int lines);

    /// Puts the time in front of every line, or not.
    void SetTimestamps(bool shown);

    /// Shows what was appended without waiting for the frame.
    void Flush();

    /// The line as it came, without a time.
    QString LineAt(int row) const { return lines_[static_cast<std::size_t>(row)].text; }

    /// All lines as they are shown, each ended by a line feed.
    QString AllText() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    static constexpr int kUsualScrollBack = 50000;

  private:
    struct Line {
        QString text;
        QDateTime time;
    };
    std::deque<Line> lines_;
    std::vector<Line> pending_;
    QTimer frame_;
    int scrollBack_ = kUsualScrollBack;
    bool timestamps_ = false;

    QString ShownLine(const Line& line) const;
    void DropOldest(std::size_t keep);
};
