#pragma once

#include <QString>

namespace qvzj::qt {

/// What the preview and the work around it say, in one language.
struct PreviewTexts {
  QString print, pdf, close;  ///< with access keys
  QString first, previous, next, last;
  QString page;                            ///< accessible name of the page's number
  QString of_pages;                        ///< "of %1 pages", beside the number
  QString smaller, larger, width, whole;   ///< sizes
  QString real_size;                       ///< tip of the shown percentage
  QString save_pdf;                        ///< title of the question for the file
  QString laying_out, painting, printing;  ///< what takes long
  QString saved, cancelled;                ///< %1 file
  QString printed;                         ///< %1 pages
  QString not_printed, not_written;        ///< %1 the reason
};

/// In traditional or simplified Chinese.
const PreviewTexts& PreviewTextsOf(bool traditional);

}  // namespace qvzj::qt
