#include "engine/modScript.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "bot/Bot.h"
#include "bot/Events.h"
#include "bot/Host.h"
#include "bot/Variables.h"
#include "engine/Arguments.h"
#include "engine/CommandNumbers.h"
#include "engine/DataFile.h"
#include "game/Lists.h"
#include "movement/modMovement.h"
#include "send/modSend.h"
#include "text/Limits.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

struct Effect {
    std::int16_t number;  ///< as makers write it
    bool gated = false;   ///< does nothing on maps where the bot may not speak
    Form form = Form::NoArguments;
    std::string_view fixed = {};  ///< what an effect sends whatever its arguments are, or puts in front
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

/// Nothing is rolled where an argument is no number, for that reads as 0.
template <void (*Send)(Bot&, std::int16_t, std::int16_t)>
void Roll(Bot& bot, std::int16_t count, std::int16_t sides) {
    if (count != 0 && sides != 0) Send(bot, count, sides);
}

/// Squares have even x only: an odd one means the square to its right, left of column 0 too, where the remainder is -1.
void WalkTo(Bot& bot, std::int16_t x, std::int16_t y) {
    modMovement::StartWalk(bot, {x % 2 == 0 ? x : Add16(x, 1), y});
}

void StopWalk(Bot& bot, const Arguments&, std::string_view) { modMovement::StopWalk(bot); }

// --- session and profile -----------------------------------------------------------------------------------------

// Elsewhere it would end the session that stands; and what the game or one of its keepers has ended is not for a script
// to begin again.
void Reconnect(Bot& bot, const Arguments&, std::string_view) {
    if (bot.currentEvent == EventDisconnected && !bot.state.shutDown) bot.host.Connect();
}

void Disconnect(Bot& bot, const Arguments&, std::string_view) { bot.host.Disconnect(); }

template <std::int16_t Flag>
void SetConnectClient(Bot& bot, const Arguments&, std::string_view) {
    bot.profile.connectClient = Flag;
}

template <SplitList Profile::*List, std::string (*Change)(std::string_view list, std::string_view entry)>
void ChangeList(Bot& bot, const Arguments& arguments, std::string_view) {
    bot.profile.*List = Change((bot.profile.*List).Text(), arguments[0]);
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
// A missing variable counts as 0, which stays 0 whatever the number is: dividing it by 0 is no fault.
constexpr Calculation kMultiply = {[](double) { return 0.0; },       [](double old, double n) { return old * n; }};
constexpr Calculation kDivide   = {[](double) { return 0.0; },       Quotient};
// clang-format on

template <const Calculation& Kind>
void Calculate(Bot& bot, const Arguments& arguments, std::string_view) {
    const double number = LeadingNumber(arguments[1]);
    const std::string* const old = bot.variables.Find(BracketedName(arguments[0]));
    const double result = old ? Kind.combine(LeadingNumber(*old), number) : Kind.missing(number);
    // No text of it could be read back at the next sum.
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
    // A draw is below 1; should a host ever draw 1, it stands for the last line.
    StoreVariable(bot, arguments[2], lines[std::min(drawn, lines.size() - 1)]);
}

// --- the table ---------------------------------------------------------------------------------------------------

// clang-format off
constexpr Effect kEffects[] = {
    {.number = 0,  .carryOut = Reconnect},
    {.number = 1,  .carryOut = Disconnect},
    {.number = 2,  .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::ShowNotice>},
    {.number = 3,  .fixed = "sit", .carryOut = Line},
    {.number = 4,  .fixed = "stand", .carryOut = Line},
    {.number = 5,  .fixed = "lie", .carryOut = Line},
    {.number = 6,  .fixed = "get", .carryOut = Line},
    {.number = 7,  .fixed = "use", .carryOut = Line},
    {.number = 8,  .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendSpeech>},
    {.number = 9,  .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendDashLine>},
    {.number = 10, .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendColonLine>},
    {.number = 11, .gated = true, .form = Form::ToPhrase, .carryOut = MessageToName<modSend::SendWhisper>},
    {.number = 12, .gated = true, .form = Form::WholeTextOrFault, .carryOut = MessageToPlayer<modSend::SendWhisper>},
    {.number = 13, .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendEmit>},
    {.number = 14, .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendEmitLoud>},
    {.number = 15, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendDesc>},
    {.number = 16, .fixed = "gomap *", .carryOut = Line},
    {.number = 17, .fixed = "gomap #", .carryOut = Line},
    {.number = 18, .fixed = "gomap %", .carryOut = Line},
    {.number = 19, .fixed = "gomap (", .carryOut = Line},
    {.number = 20, .fixed = "goback", .carryOut = Line},
    {.number = 21, .fixed = "who", .carryOut = Line},
    {.number = 22, .form = Form::WholeTextOrFault, .carryOut = Moves},
    {.number = 23, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendLook>},
    {.number = 24, .form = Form::FirstAndLast, .carryOut = Numbers<modSend::SendLookAt>},
    {.number = 25, .fixed = "shield", .carryOut = Line},
    {.number = 26, .fixed = "uploads-owner", .carryOut = Speech},
    {.number = 27, .fixed = "uploads-shared", .carryOut = Speech},
    {.number = 28, .fixed = "uploads-all", .carryOut = Speech},
    {.number = 29, .fixed = "pads-owner", .carryOut = Speech},
    {.number = 30, .fixed = "pads-shared", .carryOut = Speech},
    {.number = 31, .fixed = "pads-all", .carryOut = Speech},
    {.number = 32, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendShare>},
    {.number = 33, .fixed = kPlayer, .carryOut = Fixed<modSend::SendShare>},
    {.number = 34, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendEject>},
    {.number = 35, .fixed = kPlayer, .carryOut = Fixed<modSend::SendEject>},
    {.number = 36, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendEntryText>},
    {.number = 37, .form = Form::WholeTextOrFault, .carryOut = EntryMusic},
    {.number = 38, .fixed = "unload", .carryOut = Line},
    {.number = 39, .fixed = "unload all", .carryOut = Line},
    {.number = 40, .form = Form::WholeTextOrFault, .fixed = "unload ", .carryOut = Unload},
    // Kept on purpose: the braces must be there, what they hold does not matter.
    {.number = 41, .form = Form::WholeTextOrFault, .fixed = kPlayer, .carryOut = Fixed<modSend::SendUnshare>},
    {.number = 42, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendUnshare>},
    {.number = 43, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendOnln>},
    {.number = 44, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendJoin>},
    {.number = 45, .fixed = kPlayer, .carryOut = Fixed<modSend::SendJoin>},
    {.number = 46, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendSummon>},
    {.number = 47, .fixed = kPlayer, .carryOut = Fixed<modSend::SendSummon>},
    {.number = 48, .fixed = "parental", .carryOut = Line},
    {.number = 49, .fixed = "desctags", .carryOut = Speech},
    {.number = 50, .fixed = "time", .carryOut = Speech},
    {.number = 51, .fixed = "=news", .carryOut = Speech},
    {.number = 52, .fixed = "=event", .carryOut = Speech},
    {.number = 53, .gated = true, .form = Form::FirstAndLast, .carryOut = Numbers<Roll<modSend::SendRollUpper>>},
    {.number = 54, .gated = true, .form = Form::FirstAndLast, .carryOut = Numbers<Roll<modSend::SendRoll>>},
    {.number = 55, .fixed = "dragon", .carryOut = Line},
    {.number = 56, .fixed = "phoenix", .carryOut = Line},
    {.number = 57, .fixed = "gryffe", .carryOut = Line},
    {.number = 58, .fixed = "eagle", .carryOut = Line},
    {.number = 59, .fixed = "breath", .carryOut = Line},
    {.number = 60, .fixed = "flame", .carryOut = Line},
    {.number = 61, .gated = true, .fixed = kPlayer, .carryOut = Fixed<MakePlainCookie>},
    {.number = 62, .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<MakePlainCookie>},
    {.number = 63, .gated = true, .form = Form::WholeTextOrFault, .carryOut = MessageToPlayer<modSend::SendMakeCookie>},
    // Kept on purpose: the message keeps the "}" that ends it. 65, behind it, was never given out and does nothing.
    {.number = 64, .gated = true, .form = Form::ToPhraseKept, .carryOut = MessageToName<modSend::SendMakeCookie>},
    {.number = 66, .gated = true, .form = Form::WholeTextOrFault, .carryOut = WithText<modSend::SendGiveCookie>},
    {.number = 67, .fixed = "eat-cookie", .carryOut = Speech},
    {.number = 68, .form = Form::StorePhrase, .carryOut = SetVariable},
    {.number = 69, .form = Form::FirstAndLastApart, .carryOut = Calculate<kAdd>},
    {.number = 70, .form = Form::FirstAndLastApart, .carryOut = Calculate<kSubtract>},
    {.number = 71, .form = Form::FirstAndLastApart, .carryOut = Calculate<kMultiply>},
    {.number = 72, .form = Form::FirstAndLastApart, .carryOut = Calculate<kDivide>},
    {.number = 73, .form = Form::FourInTurnFrom6, .carryOut = WriteEntry},
    {.number = 74, .form = Form::FourInTurnFrom6, .carryOut = ReadEntry},
    {.number = 75, .form = Form::ThreeInTurnFrom6, .carryOut = RemoveEntry},
    {.number = 76, .form = Form::ThreeInTurnFrom6, .carryOut = AddListLine},
    {.number = 77, .form = Form::ThreeInTurnFrom7, .carryOut = ReadList},
    {.number = 78, .form = Form::ThreeInTurnFrom6, .carryOut = RemoveListLine},
    {.number = 79, .form = Form::TwoInTurnFrom1, .carryOut = RemoveSection},
    {.number = 80, .carryOut = SetConnectClient<0>},
    {.number = 81, .carryOut = SetConnectClient<1>},
    {.number = 82, .form = Form::WholeTextOrFault, .carryOut = ChangeList<&Profile::owners, WithEntry>},
    {.number = 83, .form = Form::WholeTextOrFault, .carryOut = ChangeList<&Profile::owners, WithoutEntry>},
    {.number = 84, .form = Form::WholeTextOrFault, .carryOut = ChangeList<&Profile::maps, WithEntry>},
    {.number = 85, .form = Form::WholeTextOrFault, .carryOut = ChangeList<&Profile::maps, WithoutEntry>},
    {.number = 86, .form = Form::FirstAndLast, .carryOut = Numbers<WalkTo>},
    {.number = 87, .carryOut = StopWalk},
    {.number = 88, .carryOut = ZeroAllVariables},
    {.number = 89, .carryOut = DeleteAllVariables},
    {.number = 90, .form = Form::WholeTextOrFault, .carryOut = DeleteVariable},
    {.number = 91, .form = Form::ThreeInTurnFrom1, .carryOut = ReadRandomLine},
};
// clang-format on

static_assert(HasARowForEach(kEffectNumbers, kEffects));

const Effect* FindEffect(int number) { return RowOf(kEffects, kEffectNumbers, number); }

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

}  // namespace

void modScript::ExecuteEffect(Bot& bot, std::string_view written, std::int16_t number) {
    std::string room;
    const std::string_view line = ExpandVariables(bot, written, room);
    const Effect* const effect = FindEffect(number - 1);
    // Before the arguments: on a map where the bot is silent, braces the wrong way round are no fault.
    if (!effect || (effect->gated && !bot.profile.maps.Holds(bot.state.map))) return;
    const std::optional<Arguments> arguments = FindArguments(line, effect->form);
    const ScriptActs acts(bot);
    if (arguments) effect->carryOut(bot, *arguments, effect->fixed);
}

bool modScript::IsGated(std::int16_t number) {
    const Effect* const effect = FindEffect(number);
    return effect && effect->gated;
}

Form modScript::FormOf(std::int16_t number) {
    const Effect* const effect = FindEffect(number);
    return effect ? effect->form : Form::NoArguments;
}
