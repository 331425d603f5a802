#pragma once

#include <string>
#include <string_view>

#include "platform/data/connection.h"

namespace qvzj {

/// Makes sure that `cnData` is open. True only when this call opened it: false also when it was
/// open already, or when it could not be opened. Throws OverflowError when SQLData does not fit a
/// byte.
bool OpenData();
/// The shared connection object, created closed when there is none.
data::Connection& Data();
/// Closes the shared connection if it is open and releases it. What the engine has to say of the
/// end (see data::Session::CheckBeforeClose) is reported in a box.
void CloseData();
/// The same without a box, for when nobody is there any more to read it.
void DropData();
/// `path` without one trailing "\".
std::string StripSlash(const std::string& path);

}  // namespace qvzj
