#include "suite/server_commands.h"

#include <cstdlib>
#include <filesystem>
#include <random>

#include "adapters/sqlite/sqlite_session.h"
#include "platform/basic/errors.h"
#include "suite/copy_data.h"
#include "suite/schema.h"

namespace qvzj {
namespace {

namespace fs = std::filesystem;

/// A data folder that is gone with the object.
class PassingFolder {
 public:
  PassingFolder() {
    std::random_device random;
    do {
      path_ = fs::temp_directory_path() / ("qvdb-" + std::to_string(random()));
    } while (!fs::create_directory(path_));
    fs::permissions(path_, fs::perms::owner_all);
  }
  ~PassingFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  PassingFolder(const PassingFolder&) = delete;
  PassingFolder& operator=(const PassingFolder&) = delete;

  Place AsPlace() const { return {path_.string(), {}}; }
  std::unique_ptr<SqliteSession> Open() const {
    return OpenSqlite((path_ / kDataFile).string(), {});
  }

 private:
  fs::path path_;
};

}  // namespace

Place PlaceWithPassword(const std::string& text, const AskPassword& ask) {
  Place place = PlaceOf(text);
  if (!place.OnServer()) return place;
  const char* password = std::getenv("QVDB_PASSWORD");
  if (password) {
    place.server.password = password;
  } else if (ask) {
    place.server.password = ask("Password of " + place.Name() + ": ");
  }
  return place;
}

void CopyPlace(const Place& source, const Place& target, const RowProgress& progress,
               std::ostream& out) {
  const OpenPlace from = OpenAt(source, false);
  const OpenPlace to = OpenAt(target, true);
  for (const CopiedTable& table : CopyData(from, to, progress)) {
    out << table.table << ": " << table.rows << " rows\n";
  }
}

void InitServer(const Place& server, const std::vector<std::string>& currencies) {
  const OpenPlace open = OpenAt(server, true);
  if (currencies.empty()) return;
  if (open.run("select count(*) from Moneys").Number(0) > 0) {
    throw Error("The currency table is not empty");
  }
  size_t type = currencies.size();
  for (const std::string& code : currencies) {
    const bool quoted = code.find('\'') != std::string::npos;
    if (quoted) throw Error("A currency code cannot hold a quote: " + code);
    open.run("insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('" + code + "',1," +
             std::to_string(type--) + ")");
  }
}

void FillServer(const Place& server, const DemoOptions& options, const RowProgress& progress) {
  const PassingFolder folder;
  const OpenPlace made = OpenAt(folder.AsPlace(), true);
  MakeDemoData(*folder.Open(), options, progress);
  CopyData(made, OpenAt(server, true), progress);
}

int64_t CheckServer(const Place& server, const RowProgress& progress,
                    const std::function<void(const Fault&)>& report) {
  const PassingFolder folder;
  CopyData(OpenAt(server, false), OpenAt(folder.AsPlace(), true), progress);
  return CheckData(*folder.Open(), report);
}

}  // namespace qvzj
