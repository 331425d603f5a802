#pragma once

#include "frontends/qt/view.h"

class QComboBox;
class QListWidget;

/// The views of combo boxes, list boxes and date pickers.
namespace qvzj::qt {

class DateEdit;
class LineLink;

class ComboView : public ControlView {
 public:
  ComboView(FormWindow& window, ui::ComboBox& combo, QWidget* parent);
  ~ComboView() override;
  QWidget* Widget() const override;
  void CommitEdit() override;
  void Mirror(ui::Aspect aspect) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool FocusesOnPress() const override { return true; }
  void SendKey(const ui::Key& key) override;

 private:
  void ShowItems();
  void ShowText();

  ui::ComboBox& combo_;
  QComboBox* native_;
  std::unique_ptr<LineLink> link_;  // of an editable box
};

class ListView : public ControlView {
 public:
  ListView(FormWindow& window, ui::ListBox& list, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;

 protected:
  bool FocusesOnPress() const override { return true; }

 private:
  void ShowItems();

  ui::ListBox& list_;
  QListWidget* native_;
};

class DateView : public ControlView {
 public:
  DateView(FormWindow& window, ui::DatePicker& picker, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool FocusesOnPress() const override { return true; }

 private:
  void ShowKeyed();
  void TakeComposed(const QString& text);
  /// The user points at a character of the shown date.
  void PointAtPart(int character);

  ui::DatePicker& picker_;
  DateEdit* native_;
};

}  // namespace qvzj::qt
