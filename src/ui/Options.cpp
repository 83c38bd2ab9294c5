#include "ui/Options.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "platform/DiskFiles.h"
#include "text/Fault.h"
#include "ui/ShownText.h"

namespace {

/// @throws RuntimeFault for what is there and can't be read, or is no JSON: it is not to be written over either
QVariantMap ReadOptions(const std::string& file) {
    const DiskFiles disk;
    if (!disk.Find(file)) return {};
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromStdString(ValueOrFault(disk.Read(file))), &error);
    if (!document.isObject()) {
        const std::string why =
            error.error == QJsonParseError::NoError ? "no object" : error.errorString().toStdString();
        throw RuntimeFault(FaultKind::PathOrFileAccess, file + ": " + why);
    }
    return document.object().toVariantMap();
}

}  // namespace

Options::Options(const QString& file) : file_(TypedPath(file)) {
    Trying([this] { values_ = ReadOptions(file_); });
}

void Options::SetTeller(std::function<void(const QString& why)> tell) {
    tell_ = std::move(tell);
    if (!trouble_.isEmpty()) tell_(trouble_);
}

void Options::Change(const char* key, const QVariant& value) {
    values_.insert(key, value);
    unkept_.insert(key, value);
    Keep();
}

void Options::Keep() {
    if (unkept_.isEmpty()) return;
    Trying([this] {
        // Another program that runs from the same folder may have changed something else.
        QVariantMap wanted = ReadOptions(file_);
        wanted.insert(unkept_);
        const std::string json = QJsonDocument(QJsonObject::fromVariantMap(wanted)).toJson().toStdString();
        ValueOrFault(DiskFiles().Write(file_, json));
        values_ = wanted;
        unkept_.clear();
    });
}

/// Reads or writes, and tells of the first time that it fails.
void Options::Trying(const std::function<void()>& work) {
    QString trouble;
    try {
        work();
    } catch (const RuntimeFault& fault) {
        trouble = ShownPath(fault.Detail());
    }
    const bool isNew = trouble_.isEmpty() && !trouble.isEmpty();
    trouble_ = trouble;
    if (isNew && tell_) tell_(trouble_);
}

void Options::AddRecentProfile(const QString& path) {
    constexpr int kRecentCount = 8;
    QStringList profiles = Get(option::kRecentProfiles);
    profiles.removeAll(path);
    profiles.prepend(path);
    Set(option::kRecentProfiles, profiles.mid(0, kRecentCount));
}

void Options::KeepSplitLines(const QString& profile, bool keep) {
    QStringList keepers = Get(option::kSplitLineKeepers);
    keepers.removeAll(profile);
    if (keep) keepers.append(profile);
    Set(option::kSplitLineKeepers, keepers);
}
