#pragma once

#include <QTabBar>
#include <QWidget>
#include <vector>

#include "frontends/qt/view.h"

namespace qvzj::qt {

/// A strip of tabs over an area. Pages that hold controls cover the whole area, so that controls
/// on them count their places from the corner of the strip; a strip without controls only frames
/// what the form places over it.
class TabsView : public ControlView {
 public:
  TabsView(FormWindow& window, ui::Tabs& tabs, QWidget* parent);
  QWidget* Widget() const override;
  QWidget* FocusWidget() const override;
  QWidget* Inner(int page) const override;
  void Mirror(ui::Aspect aspect) override;
  TextFit Fit() const override;

 private:
  void ShowCaptions();
  void ShowTab();
  void Arrange();

  ui::Tabs& tabs_;
  QWidget* area_;
  QTabBar* bar_;
  mutable std::vector<QWidget*> pages_;  // made when the first control lands on them
};

}  // namespace qvzj::qt
