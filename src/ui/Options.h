#pragma once

#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <string>

#include "net/SendBrake.h"
#include "ui/ConsoleModel.h"

/// What the user has chosen for the program itself, beside the profile: kept as JSON in a file that no script can write
/// (see ProgramFolder.h), and written as it is changed.
class Options {
  public:
    /// Reads the options; a missing file, and one that can't be read, leave the usual ones.
    /// @param file  UTF-8 path
    explicit Options(const QString& file);

    /// Who is told why the options can't be read or written: once, until it goes well again. What is changed meanwhile
    /// holds as long as the program runs, and is written with the next change, or by Keep.
    /// @param tell  is called at once when they could not be read
    void SetTeller(std::function<void(const QString& why)> tell);

    bool Monospaced() const { return Flag("console/monospaced", false); }
    bool Timestamps() const { return Flag("console/timestamps", false); }
    int ScrollBack() const { return Value("console/scrollback", ConsoleModel::kUsualScrollBack).toInt(); }
    QString LogFile() const { return Value("console/log").toString(); }
    bool Reconnect() const { return Flag("connection/reconnect", false); }
    /// How many lines a second a script may send; 0 for as many as it likes.
    int Brake() const { return Value("connection/brake", SendBrake::kUsualRate).toInt(); }
    bool ConnectAtStart() const { return Flag("connection/atStart", false); }
    QString ServerAddress() const { return Value("connection/address").toString(); }
    /// Whether the bot of a profile keeps lines that the network has split; off for profiles that are not known.
    bool KeepsSplitLines(const QString& profile) const { return SplitLineKeepers().contains(profile); }
    bool NotifyWhispers() const { return Flag("desktop/notifyWhispers", false); }
    bool TrayExplained() const { return Flag("desktop/trayExplained", false); }
    QString Language() const { return Value("desktop/language").toString(); }
    /// The profile that has ended the program soon after it was opened; empty when none.
    QString FaultedProfile() const { return Value("recent/faulted").toString(); }

    /// The profile that was open at the end, when the settings can't hold its path; otherwise empty.
    QString OpenProfile() const { return Value("recent/open").toString(); }

    QStringList RecentProfiles() const { return Value("recent/profiles").toStringList(); }

    void Set(const char* key, const QVariant& value);

    /// Puts a profile at the head of the recent ones.
    void AddRecentProfile(const QString& path);

    void KeepSplitLines(const QString& profile, bool keep);

    /// Writes what could not be written before.
    void Keep();

  private:
    std::string file_;
    QVariantMap values_;
    QVariantMap unkept_;  ///< of them what is changed and not written yet
    QString trouble_;     ///< why they can't be read or written; empty when all is well
    std::function<void(const QString& why)> tell_;

    QVariant Value(const char* key, const QVariant& usual = {}) const { return values_.value(key, usual); }
    QStringList SplitLineKeepers() const { return Value("connection/keepSplitLines").toStringList(); }
    bool Flag(const char* key, bool usual) const { return Value(key, usual).toBool(); }
    void Trying(const std::function<void()>& work);
};
