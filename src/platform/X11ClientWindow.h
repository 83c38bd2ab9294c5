#pragma once

#include <vector>

#include "platform/ClientWindow.h"
#include "platform/StartedProgram.h"

/// The client's window on an X11 desktop, XWayland included. The display is opened for each question and closed behind
/// it, so that it may come and go while the bot runs.
class X11ClientWindow final : public ClientWindow {
  public:
    void BeforeStart() override;
    void AfterStart(std::int64_t process) override { client_ = StartedProgram(process); }
    std::optional<std::int64_t> Find() override;
    void Close(std::int64_t window) override;

  private:
    StartedProgram client_;
    std::vector<std::int64_t> others_;  ///< the windows of its class that were there before it
};
