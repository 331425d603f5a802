#pragma once

#include <QDialog>
#include <QFont>

#include "frontends/qt/print/page_view.h"
#include "platform/pages.h"

class QAction;
class QSpinBox;

namespace qvzj::qt {

/// The print preview: pages to leaf through, to print and to save as a PDF file.
class PreviewWindow : public QDialog {
  Q_OBJECT

 public:
  PreviewWindow(const PageSource& pages, const QString& title, const QFont& font, bool traditional,
                QWidget* parent = nullptr);

 private:
  void BuildToolBar();
  void Leaf(int page);
  void Print();
  void SavePdf();
  QString Said(const char* simplified, const char* traditional) const;

  const PageSource& pages_;
  QString title_;
  QFont font_;
  bool traditional_;
  PageView* view_;
  QSpinBox* number_ = nullptr;
  QAction* previous_ = nullptr;
  QAction* next_ = nullptr;
};

}  // namespace qvzj::qt
