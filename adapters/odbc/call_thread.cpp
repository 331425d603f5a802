#include "adapters/odbc/call_thread.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <utility>

namespace qvzj {

/// What the two threads share; it lives as long as either needs it.
struct CallThread::State {
  std::mutex mutex;
  std::condition_variable changed;
  std::function<void()> call;  // waits to be taken up
  bool running = false;
  bool ended = false;  // no further call comes
  std::exception_ptr thrown;
};

CallThread::CallThread() : state_(std::make_shared<State>()), thread_(Work, state_) {}

CallThread::~CallThread() {
  bool idle = false;
  {
    const std::lock_guard lock(state_->mutex);
    state_->ended = true;
    idle = !state_->running;
  }
  state_->changed.notify_all();
  if (idle) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

void CallThread::Work(const std::shared_ptr<State>& state) {
  std::unique_lock lock(state->mutex);
  while (true) {
    state->changed.wait(lock, [&] { return state->ended || state->call; });
    if (!state->call) return;
    std::function<void()> call = std::exchange(state->call, nullptr);
    lock.unlock();
    std::exception_ptr thrown;
    try {
      call();
    } catch (...) {
      thrown = std::current_exception();
    }
    call = nullptr;  // lets go of what it held, which may close a connection
    lock.lock();
    state->thrown = thrown;
    state->running = false;
    state->changed.notify_all();
  }
}

bool CallThread::Run(std::function<void()> call, std::chrono::milliseconds limit) {
  {
    const std::lock_guard lock(state_->mutex);
    state_->call = std::move(call);
    state_->running = true;
  }
  state_->changed.notify_all();
  return Wait(limit);
}

bool CallThread::Wait(std::chrono::milliseconds limit) {
  std::unique_lock lock(state_->mutex);
  const auto has_ended = [this] { return !state_->running; };
  if (limit.count() == 0) {
    state_->changed.wait(lock, has_ended);
  } else if (!state_->changed.wait_for(lock, limit, has_ended)) {
    return false;
  }
  if (const std::exception_ptr thrown = std::exchange(state_->thrown, nullptr)) {
    std::rethrow_exception(thrown);
  }
  return true;
}

}  // namespace qvzj
