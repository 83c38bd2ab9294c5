#pragma once

#include <QString>

class QtHost;

/// What the tool launchers of the control panel open: the game's own tools, and the bot's configuration.
enum class Tool { PlayerEditor, GameConfiguration, VorelConfiguration };

/// Starts a tool of the game, when its program lies in the current folder.
/// @return the program that could not be started; empty when it was, or isn't there
QString StartTool(QtHost& host, Tool tool);
