#pragma once

#include <utility>

#include "platform/surroundings.h"

namespace qvzj::demo {

/// Nobody is there to answer while the screens are drawn: what a box has to say goes to standard
/// error, and every question is answered by giving up. In force as long as the object lives.
class SayingBoxes : public Boxes {
 public:
  SayingBoxes() : before_(std::exchange(Around().boxes, this)) {}
  ~SayingBoxes() override { Around().boxes = before_; }
  SayingBoxes(const SayingBoxes&) = delete;
  SayingBoxes& operator=(const SayingBoxes&) = delete;

  /// True once a box was to be shown.
  bool Said() const { return said_; }
  /// The boxes that were in force before.
  Boxes& Before() const { return *before_; }

  using Boxes::Error;
  using Boxes::Show;
  Answer Show(const std::string& text, int style, const std::string& title,
              const std::string& detail) override;
  std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                   const std::string& preset) override;
  void Error(const std::string& text, const std::string& title, const std::string& detail) override;

 private:
  void Say(const std::string& text, const std::string& title, const std::string& detail);

  Boxes* before_;
  bool said_ = false;
};

}  // namespace qvzj::demo
