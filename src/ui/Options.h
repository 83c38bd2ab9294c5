#pragma once

#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <string>
#include <type_traits>

#include "net/SendBrake.h"
#include "text/Outcome.h"
#include "ui/ConsoleModel.h"

/// One option: its name in the file, and what holds until the user chooses; where nothing is said off, 0 or empty.
template <typename Value>
struct Option {
    const char* key;
    Value usual{};
};

namespace option {

inline constexpr Option<bool> kMonospaced{"console/monospaced"};
inline constexpr Option<bool> kTimestamps{"console/timestamps"};
inline constexpr Option<int> kScrollBack{"console/scrollback", ConsoleModel::kUsualScrollBack};
inline const Option<QString> kLogFile{"console/log"};

inline constexpr Option<bool> kReconnect{"connection/reconnect"};
inline constexpr Option<bool> kConnectAtStart{"connection/atStart"};
inline constexpr Option<int> kBrake{"connection/brake", SendBrake::kUsualRate};  ///< lines a second; 0 for no brake
inline const Option<QString> kServerAddress{"connection/address"};
inline const Option<QStringList> kSplitLineKeepers{"connection/keepSplitLines"};  ///< profiles; see KeepsSplitLines

inline constexpr Option<bool> kNotifyWhispers{"desktop/notifyWhispers"};
inline constexpr Option<bool> kTrayExplained{"desktop/trayExplained"};
inline const Option<QString> kLanguage{"desktop/language"};  ///< its code; empty for the desktop's

inline const Option<QStringList> kRecentProfiles{"recent/profiles"};
inline const Option<QString> kFaultedProfile{"recent/faulted"};  ///< has ended the program soon after it was opened
inline const Option<QString> kOpenProfile{"recent/open"};        ///< at the end, when the settings can't hold its path

}  // namespace option

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

    template <typename Value>
    Value Get(const Option<Value>& option) const {
        return values_.value(option.key, QVariant::fromValue(option.usual)).template value<Value>();
    }
    template <typename Value>
    void Set(const Option<Value>& option, const std::type_identity_t<Value>& value) {
        Change(option.key, QVariant::fromValue(value));
    }

    /// Puts a profile at the head of the recent ones.
    void AddRecentProfile(const QString& path);

    /// Whether the bot of a profile keeps lines that the network has split; off for profiles that are not known.
    bool KeepsSplitLines(const QString& profile) const { return Get(option::kSplitLineKeepers).contains(profile); }
    void KeepSplitLines(const QString& profile, bool keep);

    /// Writes what could not be written before.
    void Keep();

  private:
    std::string file_;
    QVariantMap values_;
    QVariantMap unkept_;  ///< of them what is changed and not written yet
    QString trouble_;     ///< why they can't be read or written; empty when all is well
    std::function<void(const QString& why)> tell_;

    void Change(const char* key, const QVariant& value);
    Outcome<QVariantMap> WriteUnkept() const;
    void TellTrouble(const Outcome<QVariantMap>& outcome);
};
