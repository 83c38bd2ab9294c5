#pragma once

#include <memory>
#include <string>

class Script;

/// The script of a file, shared with all bots of this process that have taken up the same text from the same file: a
/// Script never changes, so many bots may run one. It lives for as long as one of them has it.
/// @param text  see Script
/// @param file  see Script; the same file under another name is another script, for faults name it so
std::shared_ptr<const Script> SharedScript(std::string text, const std::string& file);
