#pragma once

#include <memory>

#include "frontends/script/pictures.h"

namespace qvzj {

/// Draws forms and print jobs through the Qt front end, offscreen. Qt is started by the first
/// picture, so that a script without any stays quick.
class QtPictures : public script::Pictures {
 public:
  QtPictures();
  ~QtPictures() override;

  void Screenshot(ui::Form& form, const std::string& file) override;
  PrintComponent& PdfPrinter(const std::string& file) override;

 private:
  struct Running;
  Running& Start();

  std::unique_ptr<Running> running_;
};

}  // namespace qvzj
