#pragma once

/// Keeps this process, and every program that it starts, from leaving an image of its memory behind when it crashes:
/// the character's password stands in it.
void TurnOffCoreDumps();
