#include "hosts/demo/saying_boxes.h"

#include <cstdio>

namespace qvzj::demo {

Answer SayingBoxes::Show(const std::string& text, int style, const std::string& title,
                         const std::string& detail) {
  Say(text, title, detail);
  switch (style & box::kButtonsMask) {
    case 0:
      return Answer::Ok;
    case 4:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

std::optional<std::string> SayingBoxes::Input(const std::string& prompt, const std::string& title,
                                              const std::string&) {
  Say(prompt, title, {});
  return std::nullopt;
}

void SayingBoxes::Error(const std::string& text, const std::string& title,
                        const std::string& detail) {
  Say(text, title, detail);
}

void SayingBoxes::Say(const std::string& text, const std::string& title,
                      const std::string& detail) {
  said_ = true;
  std::fprintf(stderr, "qvzj-demo: %s: %s\n", title.c_str(), text.c_str());
  if (!detail.empty()) std::fprintf(stderr, "%s\n", detail.c_str());
}

}  // namespace qvzj::demo
