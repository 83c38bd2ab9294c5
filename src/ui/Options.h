#pragma once

#include <QSettings>
#include <QStringList>

#include "ui/ConsoleModel.h"

/// What the user has chosen for the program itself, beside the profile: kept in "tvorel-options.ini" in the program's
/// folder and written as it is changed.
class Options {
  public:
    /// @param file  UTF-8 path
    explicit Options(const QString& file) : file_(file, QSettings::IniFormat) {}

    bool Monospaced() const { return Flag("console/monospaced", false); }
    bool Timestamps() const { return Flag("console/timestamps", false); }
    int ScrollBack() const { return file_.value("console/scrollback", ConsoleModel::kUsualScrollBack).toInt(); }
    QString LogFile() const { return file_.value("console/log").toString(); }
    bool Reconnect() const { return Flag("connection/reconnect", false); }
    bool ConnectAtStart() const { return Flag("connection/atStart", false); }
    QString ServerAddress() const { return file_.value("connection/address").toString(); }
    bool NotifyWhispers() const { return Flag("desktop/notifyWhispers", false); }
    bool TrayExplained() const { return Flag("desktop/trayExplained", false); }
    QString Language() const { return file_.value("desktop/language").toString(); }
    /// The profile that has ended the program soon after it was opened; empty when none.
    QString FaultedProfile() const { return file_.value("recent/faulted").toString(); }

    QStringList RecentProfiles() const { return file_.value("recent/profiles").toStringList(); }

    template <typename Value>
    void Set(const char* key, const Value& value) {
        file_.setValue(key, value);
    }

    /// Puts a profile at the head of the recent ones.
    void AddRecentProfile(const QString& path);

  private:
    QSettings file_;

    bool Flag(const char* key, bool usual) const { return file_.value(key, usual).toBool(); }
};
