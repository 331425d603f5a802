#include <array>

#include "frontends/script/command.h"
#include "frontends/script/pictures.h"
#include "frontends/script/script.h"
#include "frontends/script/script_error.h"

/// Pictures of what a window would show.
namespace qvzj::script {
namespace {

Pictures& PicturesOf(Script& script) {
  if (Pictures* pictures = script.GetPictures()) return *pictures;
  throw ScriptError("this program is built without the window");
}

void Screenshot(Script& script, const Arguments& arguments) {
  PicturesOf(script).Screenshot(script.ActiveForm(), arguments[0].text);
}

/// The button that prints a grid.
ui::Button& PrintButton(Script& script, ui::Control& grid) {
  frmZj* form = script.Control().Form();
  if (form && &grid == &form->Grid1) return form->cmdKhPrint;
  if (form && &grid == &form->Grid2) return form->cmdPrint;
  throw ScriptError(script.NameOf(grid) + " is not printed");
}

void Pdf(Script& script, const Arguments& arguments) {
  Pictures& pictures = PicturesOf(script);
  ui::Button& button = PrintButton(script, script.Find(arguments[0].text).control);
  RecordingPrint& print = script.Around().print;
  if (!button.Usable()) throw ScriptError(button.FullName() + " is disabled");
  const size_t jobs = print.jobs.size();
  PrintComponent* before = std::exchange(print.inner, &pictures.PdfPrinter(arguments[1].text));
  const bool pressed = script.ActiveForm().UserClick(button);
  print.inner = before;
  if (!pressed) return;  // what went wrong was reported as it happened
  if (print.jobs.size() == jobs) throw ScriptError("there is nothing to print");
}

constexpr std::array kCommands = {
    Command{"screenshot", "FILE", 1, 1, Screenshot},
    Command{"pdf", "GRID FILE", 2, 2, Pdf},
};

}  // namespace

std::span<const Command> PictureCommands() { return kCommands; }

}  // namespace qvzj::script
