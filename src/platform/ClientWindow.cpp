#include "platform/ClientWindow.h"

#if TVOREL_X11
#include "platform/X11ClientWindow.h"

std::unique_ptr<ClientWindow> MachineClientWindow() { return std::make_unique<X11ClientWindow>(); }
#else
namespace {

/// Built without a window system: no window is ever found.
class NoClientWindow final : public ClientWindow {
  public:
    void BeforeStart() override {}
    void AfterStart(std::int64_t) override {}
    std::optional<std::int64_t> Find() override { return std::nullopt; }
    void Close(std::int64_t) override {}
};

}  // namespace

std::unique_ptr<ClientWindow> MachineClientWindow() { return std::make_unique<NoClientWindow>(); }
#endif
