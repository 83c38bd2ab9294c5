#pragma once

#include <exception>
#include <functional>
#include <utility>

class QEvent;
class QObject;

/// An application that lets no exception leave a slot, where Qt could only abort: what comes out of one that runs
/// outside QtHost::RunHandler is handed over, for the program to name it and to leave in order.
template <typename Application>
class Guarded final : public Application {
  public:
    using Application::Application;
    using Handler = std::function<void(const std::exception&)>;

    /// Until there is a handler, exceptions go on to whoever runs the application.
    void OnException(Handler handler) { handler_ = std::move(handler); }

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return Application::notify(receiver, event);
        } catch (const std::exception& exception) {
            if (!handler_) throw;
            handler_(exception);
            return true;
        }
    }

  private:
    Handler handler_;
};
