#pragma once

#include <memory>

#include "platform/services.h"

struct UConverter;

namespace qvzj {

/// The GBK code page through ICU.
class IcuAnsiCodec : public AnsiCodec {
 public:
  /// Throws Error when ICU has no GBK converter.
  IcuAnsiCodec();
  ~IcuAnsiCodec() override;

  std::string Encode(std::string_view utf8) const override;
  int BytesOf(char32_t character) const override;

 private:
  struct Closer {
    void operator()(UConverter* converter) const;
  };
  std::unique_ptr<UConverter, Closer> converter_;
};

}  // namespace qvzj
