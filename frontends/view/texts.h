#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The few texts that belong to the window and not to the module: buttons of boxes, the edit menu
/// of fields, the menu of grids, the preview. "%1" and "%2" are places to fill.
namespace qvzj::view {

struct Texts {
  std::string_view ok, cancel, yes, no;
  std::string_view show_detail, hide_detail;            ///< of the part of a box that opens
  std::string_view save, folder, file_name, file_type;  ///< of the question for a file
  std::string_view undo, redo, cut, copy, paste, erase, select_all;
  std::string_view copy_rows, find, find_next, export_grid, print, reset_columns;
  std::string_view other_type;  ///< %1 typed ending, %2 chosen type, %3 the ending's type
  std::string_view selected;    ///< how many rows are selected: %1
  std::string_view sum;         ///< of the selected rows: %1 column, %2 sum
  std::string_view find_here;   ///< stands in the empty find line
  std::string_view not_found;
  std::string_view exporting;  ///< while it takes long
  std::string_view excel_file, csv_utf8_file, csv_gb_file;
  std::string_view exported;      ///< %1 rows, %2 file
  std::string_view sheets;        ///< %1 sheets that the rows took
  std::string_view not_exported;  ///< %1 the reason
  std::string_view lost;          ///< %1 characters that the file's encoding lacks
  std::string_view shortened;     ///< a field did not take all of a text
};

/// What the preview and the work around it say, in one language.
struct PreviewTexts {
  std::string_view print, pdf, close;  ///< with access keys
  std::string_view first, previous, next, last;
  std::string_view page;                            ///< accessible name of the page's number
  std::string_view of_pages;                        ///< "of %1 pages", beside the number
  std::string_view smaller, larger, width, whole;   ///< sizes
  std::string_view real_size;                       ///< tip of the shown percentage
  std::string_view save_pdf;                        ///< title of the question for the file
  std::string_view laying_out, painting, printing;  ///< what takes long
  std::string_view saved, cancelled;                ///< %1 file
  std::string_view printed;                         ///< %1 pages
  std::string_view not_printed, not_written;        ///< %1 the reason
};

const Texts& TextsOf(bool traditional);
const PreviewTexts& PreviewTextsOf(bool traditional);

/// The text with "%1" replaced by the first value, "%2" by the second, and so on.
std::string Fill(std::string_view text, std::initializer_list<std::string_view> values);

}  // namespace qvzj::view
