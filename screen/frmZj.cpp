#include "screen/frmZj.h"

namespace qvzj {

frmZj::frmZj() : ui::Form("frmZj") { Design(); }

}  // namespace qvzj
