#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace qvzj::test {

constexpr const char* kNoSpreadsheet =
    "no LibreOffice on this machine (package libreoffice-calc-nogui)";

inline bool HasSpreadsheet() { return std::system("command -v soffice >/dev/null 2>&1") == 0; }

inline std::string BytesOf(const std::filesystem::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

/// Has an independent spreadsheet open every workbook (*.xlsx) of a folder and write its first
/// sheet, cells as shown, as comma-separated UTF-8 beside it (*.csv). Texts stand in quotes,
/// numbers and dates without.
inline void ReadBackWorkbooks(const std::filesystem::path& folder) {
  const std::string place = "'" + folder.string() + "'";
  const std::string command = "HOME=" + place +
                              " timeout 120 soffice --headless --convert-to "
                              "'csv:Text - txt - csv (StarCalc):44,34,76,1' --outdir " +
                              place + " " + place + "/*.xlsx >/dev/null 2>&1";
  EXPECT_EQ(std::system(command.c_str()), 0);
}

}  // namespace qvzj::test
