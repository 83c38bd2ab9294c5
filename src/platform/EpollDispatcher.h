#pragma once

/// Lets the application that is made next wait for its sockets by epoll. Qt's own event loops hand all of them to the
/// system in each turn, and so a line to one bot costs more with every other bot of the process.
void WaitByEpoll();
