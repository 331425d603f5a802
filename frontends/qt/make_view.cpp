#include "frontends/qt/choice_views.h"
#include "frontends/qt/grid_view.h"
#include "frontends/qt/line_link.h"
#include "frontends/qt/plain_views.h"
#include "frontends/qt/tabs_view.h"
#include "frontends/qt/text_view.h"

namespace qvzj::qt {

namespace {

template <class View, class Control>
std::unique_ptr<ControlView> Make(FormWindow& window, ui::Control& control, QWidget* parent) {
  return std::make_unique<View>(window, static_cast<Control&>(control), parent);
}

}  // namespace

std::unique_ptr<ControlView> MakeView(FormWindow& window, ui::Control& control, QWidget* parent) {
  switch (control.GetKind()) {
    case ui::Kind::Label:
      return Make<LabelView, ui::Label>(window, control, parent);
    case ui::Kind::Button:
      return Make<ButtonView, ui::Button>(window, control, parent);
    case ui::Kind::TextBox:
      return static_cast<ui::TextBox&>(control).MultiLine()
                 ? Make<MemoView, ui::TextBox>(window, control, parent)
                 : Make<LineView, ui::TextBox>(window, control, parent);
    case ui::Kind::ComboBox:
      return Make<ComboView, ui::ComboBox>(window, control, parent);
    case ui::Kind::ListBox:
      return Make<ListView, ui::ListBox>(window, control, parent);
    case ui::Kind::CheckBox:
      return Make<CheckView, ui::CheckBox>(window, control, parent);
    case ui::Kind::OptionButton:
      return Make<OptionView, ui::OptionButton>(window, control, parent);
    case ui::Kind::Frame:
      return Make<FrameView, ui::Frame>(window, control, parent);
    case ui::Kind::Tabs:
      return Make<TabsView, ui::Tabs>(window, control, parent);
    case ui::Kind::DatePicker:
      return Make<DateView, ui::DatePicker>(window, control, parent);
    case ui::Kind::Grid:
      return Make<GridView, ui::Grid>(window, control, parent);
    case ui::Kind::Menu:
      return nullptr;
  }
  return nullptr;
}

}  // namespace qvzj::qt
