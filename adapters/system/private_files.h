#pragma once

#include <string>

/// Files and folders that hold passwords or books: what this project makes of them is for their
/// owner alone (modes 0600 and 0700), whatever the process grants by default. What is there already
/// keeps the rights that somebody gave it.
namespace qvzj {

/// Makes an empty file unless one is there; whoever opens it next says what failed.
void MakePrivateFile(const std::string& file);

/// Makes a folder and those above it that are missing. Throws std::filesystem::filesystem_error.
void MakePrivateFolder(const std::string& folder);

}  // namespace qvzj
