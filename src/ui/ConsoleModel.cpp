#include "ui/ConsoleModel.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int kFrameMs = 16;  // no screen shows much more than 60 pictures a second
}

ConsoleModel::ConsoleModel(QObject* parent) : QAbstractListModel(parent) {
    frame_.setSingleShot(true);
    frame_.setInterval(kFrameMs);
    connect(&frame_, &QTimer::timeout, this, &ConsoleModel::Flush);
}

void ConsoleModel::Append(const QString& line) {
    pending_.push_back({line, QDateTime::currentDateTime()});
    if (!frame_.isActive()) frame_.start();
}

void ConsoleModel::Flush() {
    if (pending_.empty()) return;
    const auto limit = static_cast<std::size_t>(scrollBack_);
    if (pending_.size() > limit) pending_.erase(pending_.begin(), pending_.end() - scrollBack_);
    DropOldest(limit - pending_.size());
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(pending_.size()) - 1);
    std::move(pending_.begin(), pending_.end(), std::back_inserter(lines_));
    pending_.clear();
    endInsertRows();
}

void ConsoleModel::DropOldest(std::size_t keep) {
    if (lines_.size() <= keep) return;
    const auto surplus = static_cast<std::ptrdiff_t>(lines_.size() - keep);
    beginRemoveRows({}, 0, static_cast<int>(surplus) - 1);
    lines_.erase(lines_.begin(), lines_.begin() + surplus);
    endRemoveRows();
}

void ConsoleModel::Clear() {
    beginResetModel();
    pending_.clear();
    lines_.clear();
    endResetModel();
}

void ConsoleModel::SetScrollBack(int lines) {
    scrollBack_ = std::max(lines, 1);
    DropOldest(static_cast<std::size_t>(scrollBack_));
}

void ConsoleModel::SetTimestamps(bool shown) {
    timestamps_ = shown;
    if (rowCount() > 0) emit dataChanged(index(0), index(rowCount() - 1), {Qt::DisplayRole});
}

QString ConsoleModel::ShownLine(const Line& line) const {
    return timestamps_ ? line.time.toString(u"HH:mm:ss  ") + line.text : line.text;
}

QString ConsoleModel::AllText() const {
    QString text;
    for (const Line& line : lines_) text += ShownLine(line) + '\n';
    return text;
}

int ConsoleModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant ConsoleModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Line& line = lines_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return ShownLine(line);
    return role == Qt::ToolTipRole ? QVariant(line.time.toString(Qt::ISODate)) : QVariant();
}
