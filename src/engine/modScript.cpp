#include "engine/modScript.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "bot/Bot.h"
#include "bot/Events.h"
#include "bot/Host.h"
#include "bot/Lists.h"
#include "bot/Variables.h"
#include "engine/Arguments.h"
#include "engine/DataFile.h"
#include "game/Compare.h"
#include "movement/modMovement.h"
#include "send/modSend.h"
#include "text/Limits.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

/// How an effect's arguments are found on its line.
enum class Form {
    NoArguments,
    Text,          ///< one argument, from the first "{" to the last "}"
    ToPhrase,      ///< two, joined by "} to {"
    ToPhraseKept,  ///< the same, the first one keeping the "}" of the phrase
    StorePhrase,   ///< two, joined by "} and store {"
    FirstAndLast,  ///< the first braced group and the last one
    TwoNumbers,    ///< the same group may serve for both
    TwoInTurn,     ///< braced groups from left to right
    ThreeInTurn,
    FourInTurn,
};

using Arguments = std::vector<std::string_view>;

struct Effect {
    std::int16_t number;
    bool gated;  ///< does nothing on maps where the bot may not speak
    Form form;
    std::size_t argumentsFrom;  ///< the position at which the search for the first brace begins
    std::string_view fixed;     ///< what an effect without arguments sends, or puts in front
    void (*carryOut)(Bot&, const Arguments&, std::string_view fixed);
};

constexpr std::string_view kPlayer = "[player]";  // expands to the furre of the event

// --- speaking and commands ---------------------------------------------------------------------------------------

using SendText = void (*)(Bot&, std::string_view);
using SendTwoTexts = void (*)(Bot&, std::string_view, std::string_view);

template <SendText Send>
void Fixed(Bot& bot, const Arguments&, std::string_view fixed) {
    Send(bot, fixed);
}
template <SendText Send>
void WithText(Bot& bot, const Arguments& arguments, std::string_view) {
    Send(bot, arguments[0]);
}
/// The first argument is the message, the second the furre.
template <SendTwoTexts Send>
void MessageToName(Bot& bot, const Arguments& arguments, std::string_view) {
    Send(bot, arguments[1], arguments[0]);
}
template <SendTwoTexts Send>
void MessageToPlayer(Bot& bot, const Arguments& arguments, std::string_view) {
    Send(bot, kPlayer, arguments[0]);
}

constexpr auto Line = Fixed<modSend::SendLine>;
constexpr auto Speech = Fixed<modSend::SendSpeech>;

void MakePlainCookie(Bot& bot, std::string_view name) { modSend::SendMakeCookie(bot, name, ""); }

void Moves(Bot& bot, const Arguments& arguments, std::string_view) {
    std::string moves(arguments[0]);
    modSend::SendMoves(bot, moves);
}

void Unload(Bot& bot, const Arguments& arguments, std::string_view fixed) {
    modSend::SendLine(bot, std::string(fixed).append(arguments[0]));
}

void EntryMusic(Bot& bot, const Arguments& arguments, std::string_view) {
    modSend::SendEntryMusic(bot, LeadingNumberOrZero(arguments[0]));
}

template <void (*Send)(Bot&, std::int16_t, std::int16_t)>
void Numbers(Bot& bot, const Arguments& arguments, std::string_view) {
    Send(bot, LeadingNumberOrZero(arguments[0]), LeadingNumberOrZero(arguments[1]));
}

template <void (*Send)(Bot&, std::int16_t, std::int16_t)>
void Roll(Bot& bot, std::int16_t count, std::int16_t sides) {
    if (count != 0 && sides != 0) Send(bot, count, sides);
}

/// Squares have even x only: an odd one means the square to its right. Both digits and sign keep their parity.
void WalkTo(Bot& bot, std::int16_t x, std::int16_t y) {
    modMovement::StartWalk(bot, {x % 2 == 0 ? x : Add16(x, 1), y});
}

void StopWalk(Bot& bot, const Arguments&, std::string_view) { modMovement::StopWalk(bot); }

// --- session and profile -----------------------------------------------------------------------------------------

void Reconnect(Bot& bot, const Arguments&, std::string_view) {
    if (bot.currentEvent == EventDisconnected && !bot.state.shutDown) bot.host.Connect();
}

void Disconnect(Bot& bot, const Arguments&, std::string_view) { bot.host.Disconnect(); }

template <std::int16_t Flag>
void SetConnectClient(Bot& bot, const Arguments&, std::string_view) {
    bot.profile.connectClient = Flag;
}

template <std::string Profile::*List, std::string (*Change)(std::string_view list, std::string_view entry)>
void ChangeList(Bot& bot, const Arguments& arguments, std::string_view) {
    bot.profile.*List = Change(bot.profile.*List, arguments[0]);
}

// --- variables ---------------------------------------------------------------------------------------------------

void StoreVariable(Bot& bot, std::string_view name, std::string_view value) {
    CheckTextLength(value.size());  // a data file's line may be any length
    bot.variables.Set(BracketedName(name), value);
}

void SetVariable(Bot& bot, const Arguments& arguments, std::string_view) {
    StoreVariable(bot, arguments[0], arguments[1]);
}

struct Calculation {
    double (*missing)(double number);  ///< the value of a variable that did not exist yet
    double (*combine)(double old, double number);
};

double Quotient(double old, double number) {
    if (number == 0) throw RuntimeFault(FaultKind::DivisionByZero);
    return old / number;
}

// clang-format off
constexpr Calculation kAdd      = {[](double n) { return n; },       [](double old, double n) { return old + n; }};
constexpr Calculation kSubtract = {[](double n) { return -n; },      [](double old, double n) { return old - n; }};
constexpr Calculation kMultiply = {[](double) { return 0.0; },       [](double old, double n) { return old * n; }};
constexpr Calculation kDivide   = {[](double) { return 0.0; },       Quotient};
// clang-format on

template <const Calculation& Kind>
void Calculate(Bot& bot, const Arguments& arguments, std::string_view) {
    const double number = LeadingNumber(arguments[1]);
    const std::string* const old = bot.variables.Find(BracketedName(arguments[0]));
    const double result = old ? Kind.combine(LeadingNumber(*old), number) : Kind.missing(number);
    if (!std::isfinite(result)) throw RuntimeFault(FaultKind::Overflow);
    StoreVariable(bot, arguments[0], FormatNumber(result));
}

void ZeroAllVariables(Bot& bot, const Arguments&, std::string_view) { bot.variables.SetAll("0"); }
void DeleteAllVariables(Bot& bot, const Arguments&, std::string_view) { bot.variables.Clear(); }
void DeleteVariable(Bot& bot, const Arguments& arguments, std::string_view) {
    bot.variables.Remove(BracketedName(arguments[0]));
}

// --- data files --------------------------------------------------------------------------------------------------

/// The data file a script calls by this name; nothing when there is none.
std::optional<DataFile> OpenDataFile(const Bot& bot, std::string_view name) {
    const std::optional<std::string> bytes = ReadDataFile(bot, name);
    return bytes ? std::optional(DataFile::Parse(*bytes)) : std::nullopt;
}

void WriteEntry(Bot& bot, const Arguments& arguments, std::string_view) {
    ChangeDataFile(bot, arguments[1], [&](DataFile& file) {
        file.SetValue(arguments[0], arguments[2], arguments[3]);
        return true;
    });
}

void ReadEntry(Bot& bot, const Arguments& arguments, std::string_view) {
    const std::optional<DataFile> file = OpenDataFile(bot, arguments[1]);
    const std::optional<std::string> value = file ? file->Value(arguments[0], arguments[2]) : std::nullopt;
    if (value) StoreVariable(bot, arguments[3], *value);
}

void RemoveEntry(Bot& bot, const Arguments& arguments, std::string_view) {
    ChangeDataFile(bot, arguments[1], [&](DataFile& file) { return file.RemoveEntry(arguments[0], arguments[2]); });
}

void AddListLine(Bot& bot, const Arguments& arguments, std::string_view) {
    ChangeDataFile(bot, arguments[2], [&](DataFile& file) {
        file.AddLine(arguments[1], arguments[0]);
        return true;
    });
}

void ReadList(Bot& bot, const Arguments& arguments, std::string_view) {
    const std::optional<DataFile> file = OpenDataFile(bot, arguments[1]);
    if (file) StoreVariable(bot, arguments[2], JoinedList(file->Lines(arguments[0])));
}

void RemoveListLine(Bot& bot, const Arguments& arguments, std::string_view) {
    ChangeDataFile(bot, arguments[2], [&](DataFile& file) { return file.RemoveLines(arguments[1], arguments[0]); });
}

void RemoveSection(Bot& bot, const Arguments& arguments, std::string_view) {
    ChangeDataFile(bot, arguments[1], [&](DataFile& file) { return file.RemoveSection(arguments[0]); });
}

void ReadRandomLine(Bot& bot, const Arguments& arguments, std::string_view) {
    const std::optional<DataFile> file = OpenDataFile(bot, arguments[1]);
    if (!file) return;
    const std::vector<std::string> lines = file->Lines(arguments[0]);
    if (lines.empty()) return;
    const auto drawn = static_cast<std::size_t>(bot.host.Random() * static_cast<double>(lines.size()));
    StoreVariable(bot, arguments[2], lines[std::min(drawn, lines.size() - 1)]);
}

// --- the table ---------------------------------------------------------------------------------------------------

// clang-format off
constexpr Effect kEffects[] = {
    {1,  false, Form::NoArguments,  7, "",              Reconnect},
    {2,  false, Form::NoArguments,  7, "",              Disconnect},
    {3,  false, Form::Text,         7, "",              WithText<modSend::ShowNotice>},
    {4,  false, Form::NoArguments,  7, "sit",           Line},
    {5,  false, Form::NoArguments,  7, "stand",         Line},
    {6,  false, Form::NoArguments,  7, "lie",           Line},
    {7,  false, Form::NoArguments,  7, "get",           Line},
    {8,  false, Form::NoArguments,  7, "use",           Line},
    {9,  true,  Form::Text,         7, "",              WithText<modSend::SendSpeech>},
    {10, true,  Form::Text,         7, "",              WithText<modSend::SendDashLine>},
    {11, true,  Form::Text,         7, "",              WithText<modSend::SendColonLine>},
    {12, true,  Form::ToPhrase,     7, "",              MessageToName<modSend::SendWhisper>},
    {13, true,  Form::Text,         7, "",              MessageToPlayer<modSend::SendWhisper>},
    {14, true,  Form::Text,         7, "",              WithText<modSend::SendEmit>},
    {15, true,  Form::Text,         7, "",              WithText<modSend::SendEmitLoud>},
    {16, false, Form::Text,         7, "",              WithText<modSend::SendDesc>},
    {17, false, Form::NoArguments,  7, "gomap *",       Line},
    {18, false, Form::NoArguments,  7, "gomap #",       Line},
    {19, false, Form::NoArguments,  7, "gomap %",       Line},
    {20, false, Form::NoArguments,  7, "gomap (",       Line},
    {21, false, Form::NoArguments,  7, "goback",        Line},
    {22, false, Form::NoArguments,  7, "who",           Line},
    {23, false, Form::Text,         7, "",              Moves},
    {24, false, Form::Text,         7, "",              WithText<modSend::SendLook>},
    {25, false, Form::TwoNumbers,   7, "",              Numbers<modSend::SendLookAt>},
    {26, false, Form::NoArguments,  7, "shield",        Line},
    {27, false, Form::NoArguments,  7, "uploads-owner", Speech},
    {28, false, Form::NoArguments,  7, "uploads-shared", Speech},
    {29, false, Form::NoArguments,  7, "uploads-all",   Speech},
    {30, false, Form::NoArguments,  7, "pads-owner",    Speech},
    {31, false, Form::NoArguments,  7, "pads-shared",   Speech},
    {32, false, Form::NoArguments,  7, "pads-all",      Speech},
    {33, false, Form::Text,         7, "",              WithText<modSend::SendShare>},
    {34, false, Form::NoArguments,  7, kPlayer,         Fixed<modSend::SendShare>},
    {35, false, Form::Text,         7, "",              WithText<modSend::SendEject>},
    {36, false, Form::NoArguments,  7, kPlayer,         Fixed<modSend::SendEject>},
    {37, false, Form::Text,         7, "",              WithText<modSend::SendEntryText>},
    {38, false, Form::Text,         7, "",              EntryMusic},
    {39, false, Form::NoArguments,  7, "unload",        Line},
    {40, false, Form::NoArguments,  7, "unload all",    Line},
    {41, false, Form::Text,         7, "unload ",       Unload},
    // Kept on purpose: the braces must be there, what they hold does not matter.
    {42, false, Form::Text,         7, kPlayer,         Fixed<modSend::SendUnshare>},
    {43, false, Form::Text,         7, "",              WithText<modSend::SendUnshare>},
    {44, false, Form::Text,         7, "",              WithText<modSend::SendOnln>},
    {45, false, Form::Text,         7, "",              WithText<modSend::SendJoin>},
    {46, false, Form::NoArguments,  7, kPlayer,         Fixed<modSend::SendJoin>},
    {47, false, Form::Text,         7, "",              WithText<modSend::SendSummon>},
    {48, false, Form::NoArguments,  7, kPlayer,         Fixed<modSend::SendSummon>},
    {49, false, Form::NoArguments,  7, "parental",      Line},
    {50, false, Form::NoArguments,  7, "desctags",      Speech},
    {51, false, Form::NoArguments,  7, "time",          Speech},
    {52, false, Form::NoArguments,  7, "=news",         Speech},
    {53, false, Form::NoArguments,  7, "=event",        Speech},
    {54, true,  Form::TwoNumbers,   7, "",              Numbers<Roll<modSend::SendRollUpper>>},
    {55, true,  Form::TwoNumbers,   7, "",              Numbers<Roll<modSend::SendRoll>>},
    {56, false, Form::NoArguments,  7, "dragon",        Line},
    {57, false, Form::NoArguments,  7, "phoenix",       Line},
    {58, false, Form::NoArguments,  7, "gryffe",        Line},
    {59, false, Form::NoArguments,  7, "eagle",         Line},
    {60, false, Form::NoArguments,  7, "breath",        Line},
    {61, false, Form::NoArguments,  7, "flame",         Line},
    {62, true,  Form::NoArguments,  7, kPlayer,         Fixed<MakePlainCookie>},
    {63, true,  Form::Text,         7, "",              WithText<MakePlainCookie>},
    {64, true,  Form::Text,         7, "",              MessageToPlayer<modSend::SendMakeCookie>},
    // Kept on purpose: the message keeps the "}" that ends it.
    {65, true,  Form::ToPhraseKept, 7, "",              MessageToName<modSend::SendMakeCookie>},
    {67, true,  Form::Text,         7, "",              WithText<modSend::SendGiveCookie>},
    {68, false, Form::NoArguments,  7, "eat-cookie",    Speech},
    {69, false, Form::StorePhrase,  7, "",              SetVariable},
    {70, false, Form::FirstAndLast, 7, "",              Calculate<kAdd>},
    {71, false, Form::FirstAndLast, 7, "",              Calculate<kSubtract>},
    {72, false, Form::FirstAndLast, 7, "",              Calculate<kMultiply>},
    {73, false, Form::FirstAndLast, 7, "",              Calculate<kDivide>},
    {74, false, Form::FourInTurn,   6, "",              WriteEntry},
    {75, false, Form::FourInTurn,   6, "",              ReadEntry},
    {76, false, Form::ThreeInTurn,  6, "",              RemoveEntry},
    {77, false, Form::ThreeInTurn,  6, "",              AddListLine},
    {78, false, Form::ThreeInTurn,  7, "",              ReadList},
    {79, false, Form::ThreeInTurn,  6, "",              RemoveListLine},
    {80, false, Form::TwoInTurn,    1, "",              RemoveSection},
    {81, false, Form::NoArguments,  7, "",              SetConnectClient<0>},
    {82, false, Form::NoArguments,  7, "",              SetConnectClient<1>},
    {83, false, Form::Text,         7, "",              ChangeList<&Profile::owners, WithEntry>},
    {84, false, Form::Text,         7, "",              ChangeList<&Profile::owners, WithoutEntry>},
    {85, false, Form::Text,         7, "",              ChangeList<&Profile::maps, WithEntry>},
    {86, false, Form::Text,         7, "",              ChangeList<&Profile::maps, WithoutEntry>},
    {87, false, Form::TwoNumbers,   7, "",              Numbers<WalkTo>},
    {88, false, Form::NoArguments,  7, "",              StopWalk},
    {89, false, Form::NoArguments,  7, "",              ZeroAllVariables},
    {90, false, Form::NoArguments,  7, "",              DeleteAllVariables},
    {91, false, Form::Text,         7, "",              DeleteVariable},
    {92, false, Form::ThreeInTurn,  1, "",              ReadRandomLine},
};
// clang-format on

const Effect* FindEffect(std::int16_t number) {
    const auto* const row =
        std::lower_bound(std::begin(kEffects), std::end(kEffects), number,
                         [](const Effect& effect, std::int16_t wanted) { return effect.number < wanted; });
    return row != std::end(kEffects) && row->number == number ? row : nullptr;
}

/// Marks, for as long as it lives, that the script acts. An effect may raise an event, and so begin another one.
class ScriptActs {
  public:
    explicit ScriptActs(Bot& bot) : bot_(bot), before_(std::exchange(bot.scriptActs, true)) {}
    ~ScriptActs() { bot_.scriptActs = before_; }
    ScriptActs(const ScriptActs&) = delete;
    ScriptActs& operator=(const ScriptActs&) = delete;

  private:
    Bot& bot_;
    const bool before_;
};

/// One argument: unlike in conditions, a last "}" that stands before the first "{" is a fault.
std::optional<Arguments> TextArgument(std::string_view line, std::size_t from) {
    const std::size_t open = line.find('{', from - 1), close = line.rfind('}');
    if (open == line.npos || close == line.npos) return std::nullopt;
    if (close < open) throw RuntimeFault(FaultKind::InvalidProcedureCall);
    return Arguments{line.substr(open + 1, close - open - 1)};
}

std::optional<Arguments> Joined(std::string_view line, std::string_view phrase, bool keepsBrace) {
    const auto arguments = ArgumentsJoinedBy(line, phrase);
    if (!arguments) return std::nullopt;
    const std::string_view first(arguments->first.data(), arguments->first.size() + (keepsBrace ? 1 : 0));
    return Arguments{first, arguments->second};
}

/// The first braced group and the last one, without their braces.
std::optional<Arguments> OuterGroups(std::string_view line, bool mayBeTheSame) {
    const auto first = FirstArgument(line), last = LastArgument(line);
    if (!first || !last || (!mayBeTheSame && last->data() < first->data() + first->size())) return std::nullopt;
    return Arguments{first->substr(0, first->size() - 1), last->substr(0, last->size() - 1)};
}

std::optional<Arguments> FindArguments(std::string_view line, const Effect& effect) {
    switch (effect.form) {
        case Form::NoArguments:
            return Arguments{};
        case Form::Text:
            return TextArgument(line, effect.argumentsFrom);
        case Form::ToPhrase:
            return Joined(line, "} to {", false);
        case Form::ToPhraseKept:
            return Joined(line, "} to {", true);
        case Form::StorePhrase:
            return Joined(line, "} and store {", false);
        case Form::FirstAndLast:
            return OuterGroups(line, false);
        case Form::TwoNumbers:
            return OuterGroups(line, true);
        case Form::TwoInTurn:
            return ArgumentsInTurn(line, 2, effect.argumentsFrom);
        case Form::ThreeInTurn:
            return ArgumentsInTurn(line, 3, effect.argumentsFrom);
        case Form::FourInTurn:
            return ArgumentsInTurn(line, 4, effect.argumentsFrom);
    }
    return std::nullopt;
}

}  // namespace

void modScript::ExecuteEffect(Bot& bot, std::string& line, std::int16_t number) {
    line = ExpandVariables(bot, line);
    const Effect* const effect = FindEffect(number);
    if (!effect || (effect->gated && !InList(bot.profile.maps, bot.state.map))) return;
    const std::optional<Arguments> arguments = FindArguments(line, *effect);
    const ScriptActs acts(bot);
    if (arguments) effect->carryOut(bot, *arguments, effect->fixed);
}
