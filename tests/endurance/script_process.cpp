#include "tests/endurance/script_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <stdexcept>

namespace qvzj::endurance {
namespace {

struct Pipe {
  Pipe() {
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe");
  }
  std::array<int, 2> ends{};
};

}  // namespace

ScriptProcess::ScriptProcess(std::vector<std::string> arguments) {
  signal(SIGPIPE, SIG_IGN);
  arguments.insert(arguments.begin(), {QV_SCRIPT_PROGRAM, "--today", "2024-03-15"});
  std::vector<char*> words;
  for (std::string& argument : arguments) words.push_back(argument.data());
  words.push_back(nullptr);
  const Pipe in;
  const Pipe out;
  child_ = fork();
  if (child_ < 0) throw std::runtime_error("cannot start qvzj-script");
  if (child_ == 0) {
    dup2(in.ends[0], STDIN_FILENO);
    dup2(out.ends[1], STDOUT_FILENO);
    execv(QV_SCRIPT_PROGRAM, words.data());
    _exit(127);
  }
  close(in.ends[0]);
  close(out.ends[1]);
  in_ = in.ends[1];
  out_ = out.ends[0];
}

ScriptProcess::~ScriptProcess() {
  if (child_ > 0) {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  if (in_ >= 0) close(in_);
  close(out_);
}

void ScriptProcess::Send(const std::string& line) {
  const std::string text = line + "\n";
  size_t sent = 0;
  while (sent < text.size()) {
    const ssize_t count = write(in_, text.data() + sent, text.size() - sent);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return;
    sent += static_cast<size_t>(count);
  }
}

std::optional<std::string> ScriptProcess::Read() {
  while (true) {
    const size_t end = read_.find('\n');
    if (end != std::string::npos) {
      std::string line = read_.substr(0, end);
      read_.erase(0, end + 1);
      return line;
    }
    std::array<char, 4096> buffer;
    const ssize_t count = read(out_, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return std::nullopt;
    read_.append(buffer.data(), static_cast<size_t>(count));
  }
}

std::string ScriptProcess::Ask(const std::string& line) {
  Send(line);
  Send("property AlertType");
  std::string printed;
  while (const auto answer = Read()) {
    if (*answer == "AlertType=\"0\"") break;
    printed += *answer + "\n";
  }
  return printed;
}

void ScriptProcess::Kill() {
  kill(child_, SIGKILL);
  waitpid(child_, nullptr, 0);
  child_ = -1;
}

int ScriptProcess::Finish() {
  close(in_);
  in_ = -1;
  while (Read()) {
  }
  int status = 0;
  waitpid(child_, &status, 0);
  child_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace qvzj::endurance
