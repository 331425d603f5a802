#pragma once

#include <cstdint>
#include <string>

namespace qvzj {

/// Is the suite's function `name` available to the user? Positive: yes. Logs a user in first when
/// nobody is. With `check`, also asks the user's right and the function's second password.
int16_t ModuleGate(std::string name, int16_t offset, bool check);
/// Looks a function up by internal or display name: its number, 0 when unknown; `name` becomes the
/// internal name, `display` and `password` are filled.
int16_t GetModule(std::string& name, std::string& display, std::string& password);
/// Asks for a second password; true at once when there is none.
bool PasswordGate(const std::string& password);
/// Lets the user component record that the user opened a function.
void RecordAccess(const std::string& function);

}  // namespace qvzj
