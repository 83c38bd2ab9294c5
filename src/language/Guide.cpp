#include "language/Guide.h"

namespace {

constexpr std::string_view kGuide = R"guide(# VorelSpeak, the language of the bots

This is all that a bot can be told: how a script is written, how it runs, and every variable, event, condition and
effect. The lists are made by `scripts/language` from the tables in `src/language/`, as is the list in the script
editor, so change them there and not here.

## A script

A script is a text file that ends in ".vs". Its first line is the header, and it ends with a line that says so:

```
VSPK 01.00 Vorel

This is a remark.

(0:6) When someone whispers something to you,
 (1:6) and they said something with {hello} in it,
     (5:12) whisper {Hello, [player]!} to them.

*Endtriggers* 9999 *Endtriggers*
```

- The **header** stands alone on the first line. A script without it does nothing at all.
- A **command** is a line that begins with two numbers in parentheses, with a colon between them and a blank behind.
  Blanks in front don't matter. The first number says what it is: 0 a cause, 1 a condition, 5 an effect. The second
  says which one.
- The **words** behind the numbers are for you. The bot goes by the numbers and by what stands in braces, so you may
  put the words as you like, with three exceptions: a cause may hold no digit unless it is meant as a timer, the words
  between two braces must stay where a command says so, and no braces may be added.
- Every other line is a **remark**, as long as it does not begin with a parenthesis.
- The line **\*Endtriggers\* 9999 \*Endtriggers\*** ends the script. Keep it: the very last line of a script is never
  carried out.

The script speaks to your bot: "you" in a command is the bot, and "they" are the furre that the event is about.

## How a trigger runs

A **trigger** is a cause, the conditions below it, and the effects below these, up to the next cause. Whenever
something happens, the bot walks through the whole script from top to bottom. For every cause that answers the event it
tests all conditions of the trigger; when all of them hold, it carries out the effects, from top to bottom.

- All triggers that answer an event run, in the order of the file. There is no "or else": write a second trigger with
  the opposite condition.
- A condition below the first effect of a trigger is passed over.
- Effects change things at once: a trigger further down sees the variables as the triggers before it have left them.
- What is sent to the game is answered later, as an event of its own. An effect never waits.
- Saving the script in the editor puts it to work at once and raises (0:0).

## Arguments

What stands in braces is an argument: `(5:8) say {Hello!}.` Put your own text between the braces and leave the braces
where they are. Where a command takes two arguments, leave the words between them as they are, too: (5:11) and (5:64)
need exactly `} to {`, and (5:68) exactly `} and store {`. The order of arguments counts as well, above all with data
files.

- A command whose brace is missing does nothing, and a condition never holds.
- A **number** is taken from the beginning of its text; a text that begins with none counts as 0. Numbers from -32768
  to 32767 are understood; beyond them, in places where whole numbers are needed, is an error that ends the program.
- A **furre's name** may be written with blanks or with |, which the game takes for a blank.
- The **columns** of a map are counted by twos: 0, 2, 4. Rows are counted by ones.
- Braces inside an argument lead astray, also when they come out of a variable.

## Comparing texts

Where a condition doesn't say otherwise, capitals and small letters are the same, and | is the same as a blank:
{small|fox} is "Small Fox". In a pattern, * stands for any characters or none, ? for one character, # for one digit,
[abc] or [a-c] for one of the characters listed, and [!abc] for one that is not listed.

## Variables

A name in brackets is replaced by a value before the bot reads a line: [player] becomes the name of the furre that
the event is about. A name that the bot doesn't know stays as it is written; capitals and small letters count.

**Variables of your own** are made by (5:68). There, and wherever a command asks for a variable, write the name without
brackets; wherever you want the value, write it with brackets:

```
     (5:68) take the variable {guest} and store {[player]} in it.
     (5:8) say {My guest is [guest].}
```

Values are looked through for variables again before they are sent: when a furre says "[time]" and the bot repeats
[message], the bot says the time. Don't let it repeat the words of others where that matters.

A variable keeps its value until an event brings a new one, so it can be read long after the event. [player] and its
companions are different: they mean the furre of the event that is being handled.

## Data files

Data files keep things for longer than the program runs. They are text files in the program's folder, named after a
command's argument, with ".ini" behind. Inside there are sections, and in a section there are either entries, which have
a key and a value, or plain lines:

```
[points]
Ann=8
Small Fox=12
[words]
honey
tea
```

Names of files, sections and keys are found whether they are written in capitals or in small letters.

## When something goes wrong

Mistakes in words do nothing. Some mistakes in numbers are errors, which end the program after a message that names the
error and the line: a command whose numbers can't be read, such as (0:a); a number that is too large; dividing a
variable by 0; asking for a die that was not rolled; a data file that can't be written.

The effects that **speak** work only on maps that the bot's profile lists; they are marked below. Nothing is sent while
the bot is not connected.
)guide";

}  // namespace

std::string_view LanguageGuide() { return kGuide; }
