#pragma once

#include <QString>
#include <string>

// Where the program keeps what. All paths are UTF-8.
//
//   PROGRAM FOLDER/                 settings (tvorel.cfg), the command list (vslist.vs), and what scripts write: data
//                                   files, each under a name of the script's choice with ".ini" behind it
//   PROGRAM FOLDER/tvorel.own/      what is the program's alone: options, unsaved work. A data file's name holds no
//   "/",
//                                   so whatever a script calls it, it can't lie here.

/// The program's own folder: that of the executable when it can be written, so that a copy on a stick keeps its things
/// together; otherwise the user's data folder for the program.
QString FindProgramFolder();

/// The folder in it that is the program's alone; made when it is missing, for its owner only.
QString OwnFolder(const QString& programFolder);

/// The file of the options in it.
QString OptionsFile(const QString& programFolder);

/// Puts the command list into the program's folder where it is missing: the installed one, and where that is missing
/// too, the one that the program was built with.
/// @return why that can't be done; empty when the list lies there
std::string ProvideCommandList(const QString& programFolder);
