#pragma once

#include <QDialog>
#include <QFont>
#include <exception>

#include "frontends/view/page_fit.h"
#include "frontends/view/texts.h"
#include "platform/pages.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpinBox;

namespace qvzj::qt {

class PageDesk;

/// The print preview: pages to leaf through, to print and to save as a PDF file. Page up, page
/// down, Home and End leaf; the arrows scroll; Ctrl with plus, minus and 0 sizes; Ctrl+P prints,
/// Ctrl+S saves, Esc closes.
class PreviewWindow : public QDialog {
 public:
  PreviewWindow(const PageSource& pages, const QString& title, const QFont& font, bool traditional,
                QWidget* parent = nullptr);

  PageDesk& Desk() { return *desk_; }
  /// Writes the PDF file with progress and says how it went.
  void WritePdfTo(const QString& path);

 protected:
  bool event(QEvent* event) override;

 private:
  void BuildBar(QHBoxLayout& row);
  void AddLeafing(QHBoxLayout& row);
  void AddSizes(QHBoxLayout& row);
  void AddKeys();
  QPushButton* AddButton(QHBoxLayout& row, std::string_view text, const QString& keys);
  void Colour();
  void ShowPage();
  void ShowSize();
  void ChooseFit(view::PageFit fit);
  void Print();
  void SavePdf();
  void Say(std::string_view text);
  void Complain(std::string_view text, const std::exception& error);

  const PageSource& pages_;
  QString title_;
  QFont font_;
  bool traditional_;
  const view::PreviewTexts& texts_;
  QWidget* bar_;
  PageDesk* desk_;
  QSpinBox* number_ = nullptr;
  QPushButton* first_ = nullptr;
  QPushButton* previous_ = nullptr;
  QPushButton* next_ = nullptr;
  QPushButton* last_ = nullptr;
  QPushButton* zoom_ = nullptr;
  QPushButton* width_ = nullptr;
  QPushButton* whole_ = nullptr;
  QLabel* said_ = nullptr;  // how the last work went
};

}  // namespace qvzj::qt
