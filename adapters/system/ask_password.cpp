#include "adapters/system/ask_password.h"

#include <termios.h>
#include <unistd.h>

#include <iostream>

namespace qvzj {

std::string AskPassword(const std::string& prompt) {
  termios shown{};
  const bool terminal = tcgetattr(STDIN_FILENO, &shown) == 0;
  if (terminal) {
    termios hidden = shown;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::cerr << prompt << std::flush;
  }
  std::string password;
  std::getline(std::cin, password);
  if (terminal) {
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
    std::cerr << "\n";
  }
  return password;
}

}  // namespace qvzj
