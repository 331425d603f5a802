#include "hosts/demo/demo_host.h"

#include "frontends/qt/text.h"

namespace qvzj::demo {

DemoHost::DemoHost(const QString& data, const QString& settings_file)
    : component_(settings_file) {
  control_.InitProperties();
  control_.setUserPath(qt::ToUtf8(data));
  control_.setSQLData(0);
  control_.setMyModel("11111111111");
  control_.setUserName("admin");
  control_.setZgName("admin");
  control_.setCompName("示例贸易有限公司");
}

void DemoHost::Open(int16_t run_mode) {
  if (control_.Form() != nullptr && run_mode != open_mode_) Close();
  open_mode_ = run_mode;
  control_.refresh(run_mode, 0);
}

void DemoHost::Close() {
  if (frmZj* form = control_.Form()) form->UserClose();
}

void DemoHost::SetLanguage(int16_t language) {
  if (language == language_) return;
  Close();
  language_ = language;
  control_.setLanguage(language);
}

}  // namespace qvzj::demo
