#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bot/Profile.h"

/// What the configuration dialog decides, without showing it: working copies of a profile's lists, which only Apply
/// writes into the profile. Names are Windows-1252.
///
/// Kept on purpose: owners and maps are stored with "|" for blanks, as the protocol writes names; ignored names with
/// blanks for "|", as names are shown.
class ProfileEdit {
  public:
    explicit ProfileEdit(Profile& profile);

    /// One of the two lists that are kept as one text.
    struct NameList {
        std::vector<std::string> entries;
        std::string text;  ///< what duplicates are judged on
    };
    const NameList& Owners() const { return owners_; }
    const NameList& Maps() const { return maps_; }

    /// Adds what was typed.
    /// @return the refusal to show, if any
    std::optional<std::string> AddOwner(std::string_view typed);
    std::optional<std::string> AddMap(std::string_view typed);

    /// Removes an entry. Kept on purpose: the removal from the text is textual, and cuts the name out of longer ones.
    void DeleteOwner(std::size_t index);
    void DeleteMap(std::size_t index);

    /// The ignore list is the profile's own: what is done to it counts at once, whatever button closes the dialog.
    enum class IgnoreAnswer { Nothing, Added, AlreadyThere };
    /// @param name  what was typed, replaced by the form that is stored
    IgnoreAnswer AddIgnore(std::string& name);
    void RemoveIgnore(std::size_t index);

    /// What the other controls hold when OK is chosen.
    struct Fields {
        std::string clientPath, characterPath;
        bool connectClient = false, closeClient = false, signatureFirst = false;
        std::string port;  ///< as it stands in the box
    };

    /// Whether a text begins with a number from 1 to 32767, which is what a profile can hold as its port.
    static bool IsUsablePort(const std::string& text);

    /// Writes everything into the profile. An unusable port leaves the old one.
    void Apply(const Fields& fields);

    void MarkChanged() { profile_.dirty = true; }

  private:
    Profile& profile_;
    NameList owners_, maps_;

    std::optional<std::string> Add(NameList& list, std::string_view typed, std::string_view refusal);
    void Delete(NameList& list, std::size_t index);
};
