#include "frontends/qt/tabs_view.h"

#include <QPainter>
#include <QSignalBlocker>

#include "frontends/qt/calm_style.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {

namespace {

/// The framed area under the tabs. A strip that has no pages of its own stands alone, without it.
class TabArea : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!HasPages()) return;
    QPainter painter(this);
    const view::Colors& colors = ColorsFor(palette());
    DrawRounded(painter, rect(), colors.card, colors.border);
  }

 private:
  // Everything in the area besides the bar itself is a page.
  bool HasPages() const {
    return findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size() > 1;
  }
};

}  // namespace

TabsView::TabsView(FormWindow& window, ui::Tabs& tabs, QWidget* parent)
    : ControlView(window, tabs),
      tabs_(tabs),
      area_(new TabArea(parent)),
      bar_(new QTabBar(area_)),
      pages_(static_cast<size_t>(tabs.Count()), nullptr) {
  Adopt(area_, bar_);
  area_->setFocusPolicy(Qt::NoFocus);
  bar_->setDrawBase(false);
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(false);
  for (int i = 0; i < tabs_.Count(); ++i) bar_->addTab(QString());
  connect(bar_, &QTabBar::tabBarClicked, this, [this](int tab) {
    if (tab < 0 || !Live()) return;
    Act([&] { return GetForm().UserTab(tabs_, tab); });
    if (Live()) ShowTab();
  });
  // The bar moves on its own after a press; it shows what the form decided.
  connect(bar_, &QTabBar::currentChanged, this, [this] {
    if (Live()) ShowTab();
  });
}

QWidget* TabsView::Widget() const { return area_; }

QWidget* TabsView::FocusWidget() const { return bar_; }

QWidget* TabsView::Inner(int page) const {
  if (page < 0) return area_;
  QWidget*& made = pages_.at(static_cast<size_t>(page));
  if (made == nullptr) {
    made = new QWidget(area_);
    made->setGeometry(area_->rect());
    made->lower();
    made->setVisible(tabs_.Tab() == page);
  }
  return made;
}

void TabsView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  switch (aspect) {
    case ui::Aspect::Tabs:
      ShowCaptions();
      ShowTab();
      return;
    case ui::Aspect::Value:
      ShowTab();
      return;
    case ui::Aspect::Bounds:
      Arrange();
      return;
    default:
      return;
  }
}

void TabsView::ShowCaptions() {
  for (int i = 0; i < tabs_.Count(); ++i) {
    const QString shown = FromUtf8(ui::ShownCaption(tabs_.TabCaption(i)));
    bar_->setTabText(i, QString(shown).replace("&", "&&"));
  }
  Arrange();
}

void TabsView::ShowTab() {
  const QSignalBlocker quiet(bar_);
  bar_->setCurrentIndex(tabs_.Tab());
  for (size_t i = 0; i < pages_.size(); ++i) {
    if (pages_[i] != nullptr) pages_[i]->setVisible(static_cast<int>(i) == tabs_.Tab());
  }
}

void TabsView::Arrange() {
  bar_->setGeometry(4, 1, area_->width() - 8, bar_->sizeHint().height());
  for (QWidget* page : pages_) {
    if (page != nullptr) page->setGeometry(area_->rect());
  }
  bar_->raise();
}

TextFit TabsView::Fit() const { return {bar_->sizeHint().width(), bar_->width()}; }

}  // namespace qvzj::qt
