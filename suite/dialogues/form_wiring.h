#pragma once

#include "platform/advice.h"
#include "platform/surroundings.h"
#include "platform/ui/form.h"

namespace qvzj::dialogues {

/// Connects what every form of the suite needs: error box in `language`, clipboard, and the
/// presenter's notice when it is closed.
inline void WireForm(ui::Form& form, int16_t language) {
  form.onError = [&form, language](const std::exception& error) {
    Around().boxes->Error(error.what(), form.Caption(), Advice(error, LanguageOf(language)));
  };
  form.onUnload = [&form] { Around().presenter->Closed(form); };
  form.readClipboard = [] { return Around().clipboard->Text(); };
  form.writeClipboard = [](const std::string& text) { Around().clipboard->SetText(text); };
}

/// Makes Enter in a field move on as Tab does, and Esc close the form.
inline void MoveOnByEnter(ui::Form& form, ui::Control& control) {
  control.onKeyPress = [&form](int& key) {
    if (key == ui::kKeyEnter) {
      key = 0;
      form.SendTab();
    } else if (key == ui::kKeyEscape) {
      key = 0;
      form.Unload();
    }
  };
}

}  // namespace qvzj::dialogues
