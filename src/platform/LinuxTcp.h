#pragma once

#include <QtGlobal>

// What Linux knows of a TCP connection beyond what Qt tells of it.

/// Lets the system ask whether the other side is still there when it has been silent for a minute, and give it up when
/// it has not answered for two: a computer that was switched off never says so.
/// @param descriptor  of a connected socket
void KeepAlive(qintptr descriptor);

/// The bytes that have arrived and are not read from the system yet.
/// @param descriptor  of a socket; 0 for none that is open
qint64 WaitingBytes(qintptr descriptor);
