#include "ui/Options.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "platform/DiskFiles.h"
#include "ui/ShownText.h"

namespace {

/// @return none, when there is no file; a fault for what can't be read, or is no JSON: it is not to be written over
///         either
Outcome<QVariantMap> ReadOptions(const std::string& file) {
    const DiskFiles disk;
    if (!disk.Find(file)) return QVariantMap();
    const auto bytes = disk.Read(file);
    if (!bytes) return bytes.Fault();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(*bytes), &error);
    if (!document.isObject()) {
        const std::string why =
            error.error == QJsonParseError::NoError ? "no object" : error.errorString().toStdString();
        return RuntimeFault(FaultKind::PathOrFileAccess, file + ": " + why);
    }
    return document.object().toVariantMap();
}

}  // namespace

Options::Options(const QString& file) : file_(TypedPath(file)) {
    const auto read = ReadOptions(file_);
    if (read) values_ = *read;
    TellTrouble(read);
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
    const auto kept = WriteUnkept();
    if (kept) {
        values_ = *kept;
        unkept_.clear();
    }
    TellTrouble(kept);
}

/// @return what the file holds now
Outcome<QVariantMap> Options::WriteUnkept() const {
    // Another program that runs from the same folder may have changed something else.
    auto options = ReadOptions(file_);
    if (!options) return options;
    QVariantMap wanted = *options;
    wanted.insert(unkept_);
    const std::string json = QJsonDocument(QJsonObject::fromVariantMap(wanted)).toJson().toStdString();
    const auto written = DiskFiles().Write(file_, json);
    return written ? wanted : Outcome<QVariantMap>(written.Fault());
}

/// Tells of the first time that reading or writing fails.
void Options::TellTrouble(const Outcome<QVariantMap>& outcome) {
    const QString trouble = outcome ? QString() : ShownPath(outcome.Fault().Detail());
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
