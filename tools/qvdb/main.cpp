#include <iostream>

#include "adapters/system/ask_password.h"
#include "tools/qvdb/qvdb.h"

int main(int argc, char** argv) {
  return qvzj::qvdb::Run({argv + 1, argv + argc},
                         {std::cin, std::cout, std::cerr, qvzj::AskPassword});
}
