#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace qvzj {

/// Runs calls one after another on a thread of its own, so that whoever waits for one can stop
/// waiting. Used by one thread.
class CallThread {
 public:
  CallThread();
  /// Waits for no call: one that still runs ends on its own, and what it holds goes with it.
  ~CallThread();
  CallThread(const CallThread&) = delete;
  CallThread& operator=(const CallThread&) = delete;

  /// Starts `call` and waits for it, 0 = without end. True when it has ended; what it threw is
  /// thrown here. False when it still runs: it must then be waited for before the next is started.
  /// The call outlives the caller's patience, so it must own all that it touches.
  bool Run(std::function<void()> call, std::chrono::milliseconds limit);
  /// Goes on waiting for the call that was started last; answers as Run does.
  bool Wait(std::chrono::milliseconds limit);

 private:
  struct State;
  static void Work(const std::shared_ptr<State>& state);

  std::shared_ptr<State> state_;
  std::thread thread_;
};

}  // namespace qvzj
