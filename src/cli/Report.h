#pragma once

#include <string>
#include <string_view>

#include "net/SessionStatus.h"
#include "profile/ProfileFile.h"
#include "text/Fault.h"

struct Bot;

/// Tells on standard error what `vorel run` has to say beside the console's lines. UTF-8.
void TellOfRun(const std::string& what);

/// Tells why a run, or a bot of it, can't begin.
/// @return the status
int RefuseRun(int status, const std::string& why);

/// A fault in words for standard error (see DescribeFault): UTF-8, control characters put out of action.
std::string FaultForTerminal(const RuntimeFault& fault, const Bot& bot);

/// Why a session that was lost, or never came about, has ended. Windows-1252.
std::string ReasonOfEnd(const SessionStatus& status);

/// Tells which script a profile names in vain. UTF-8.
std::string MissingScript(const std::string& profilePath, const ProfileLoad& load);

/// A line of the game for a terminal: UTF-8, control characters put out of action.
std::string Printable(std::string_view text);
