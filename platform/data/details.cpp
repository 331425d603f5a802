#include "platform/data/details.h"

#include <algorithm>

#include "platform/basic/text.h"

namespace qvzj::data {
namespace {

constexpr std::string_view kBlanks = " \t";

/// A piece of the details by its ends.
struct Place {
  size_t begin;
  size_t end;
};

/// The piece without the blanks around it.
Place Trimmed(std::string_view text, Place place) {
  while (place.begin < place.end && kBlanks.find(text[place.begin]) != kBlanks.npos) ++place.begin;
  while (place.begin < place.end && kBlanks.find(text[place.end - 1]) != kBlanks.npos) --place.end;
  return place;
}

std::string Cut(std::string_view text, Place place) {
  return std::string(text.substr(place.begin, place.end - place.begin));
}

/// Place of the semicolon that ends the value which begins at `start`, or of the end.
size_t EndOfValue(std::string_view details, size_t start) {
  size_t at = start;
  if (details.substr(start, 1) == "{") {
    for (++at; at < details.size(); ++at) {
      if (details[at] != '}') continue;
      if (details.substr(at, 2) != "}}") break;
      ++at;
    }
  }
  return std::min(details.find(';', std::min(at, details.size())), details.size());
}

std::string WithoutBraces(const std::string& value) {
  if (!value.starts_with('{')) return value;
  const size_t closing = value.size() > 1 && value.ends_with('}') ? 1 : 0;
  return basic::Replace(value.substr(1, value.size() - 1 - closing), "}}", "}");
}

bool NamesAPassword(const std::string& key) {
  const std::string name = basic::Lower(key);
  return name.ends_with("pwd") || name.ends_with("password");
}

/// The password of "user:password@host", with or without a scheme before it.
void FindLogin(std::string_view text, Place within, std::vector<Place>& found) {
  const std::string_view piece = text.substr(0, within.end);
  const size_t scheme = piece.find("://", within.begin);
  const size_t start = scheme == piece.npos ? within.begin : scheme + 3;
  const size_t at = piece.rfind('@');
  const size_t colon = piece.find(':', start);
  if (at == piece.npos || colon == piece.npos || at < colon) return;
  found.push_back({colon + 1, at});
}

/// Place behind the value that begins at `start` in the options of a driver, which a quote or a
/// blank ends.
size_t EndOfOption(std::string_view text, size_t start, bool quoted) {
  const std::string_view enders = quoted ? "'" : " \t&}";
  size_t end = start;
  while (end < text.size() && enders.find(text[end]) == enders.npos) {
    end += text[end] == '\\' ? 2 : 1;
  }
  return std::min(end, text.size());
}

/// The passwords of "… password=… …", as options within a value have them.
void FindOptions(std::string_view text, Place within, std::vector<Place>& found) {
  constexpr std::string_view kName = "password";
  const std::string lower = basic::Lower(text.substr(0, within.end));
  for (size_t at = within.begin; (at = lower.find(kName, at)) != lower.npos;) {
    at = lower.find_first_not_of(kBlanks, at + kName.size());
    if (at == lower.npos || lower[at] != '=') continue;
    at = std::min(lower.find_first_not_of(kBlanks, at + 1), lower.size());
    const bool quoted = lower.compare(at, 1, "'") == 0;
    if (quoted) ++at;
    const size_t end = EndOfOption(lower, at, quoted);
    found.push_back({at, end});
    at = end;
  }
}

/// True for a folder or a file, whose name is no login whatever it holds.
bool IsPath(std::string_view text) {
  const bool drive = text.size() > 2 && text[1] == ':' && (text[2] == '\\' || text[2] == '/');
  return drive || text.starts_with('/') || text.starts_with('\\') || text.starts_with('.');
}

std::vector<Place> PasswordPlaces(std::string_view text) {
  std::vector<Place> found;
  if (IsPath(text)) return found;
  const std::vector<Detail> details = DetailsIn(text);
  size_t piece = 0;
  for (const Detail& detail : details) {
    if (NamesAPassword(detail.key)) {
      found.push_back({detail.begin, detail.end});
    } else {
      FindLogin(text, {piece, detail.end}, found);
      FindOptions(text, {detail.begin, detail.end}, found);
    }
    piece = detail.end;
  }
  if (details.empty()) FindLogin(text, {0, text.size()}, found);
  return found;
}

}  // namespace

bool Detail::Is(std::string_view name) const { return basic::EqualIgnoringCase(key, name); }

std::string Detail::Plain() const { return WithoutBraces(value); }

std::vector<Detail> DetailsIn(std::string_view details) {
  std::vector<Detail> found;
  for (size_t at = 0; at < details.size();) {
    size_t end = std::min(details.find(';', at), details.size());
    const size_t equals = details.find('=', at);
    if (equals < end) {
      const size_t start = details.find_first_not_of(kBlanks, equals + 1);
      end = start == details.npos ? details.size() : EndOfValue(details, start);
      const Place value = Trimmed(details, {equals + 1, end});
      const std::string key = Cut(details, Trimmed(details, {at, equals}));
      found.push_back({key, Cut(details, value), value.begin, value.end});
    }
    at = end + 1;
  }
  return found;
}

std::vector<std::string> PasswordsIn(const std::string& details) {
  std::vector<std::string> passwords;
  for (const Place place : PasswordPlaces(details)) {
    passwords.push_back(WithoutBraces(Cut(details, place)));
  }
  return passwords;
}

std::string WithoutPasswords(std::string details) {
  const std::vector<Place> places = PasswordPlaces(details);
  for (size_t i = places.size(); i-- > 0;) {
    details.replace(places[i].begin, places[i].end - places[i].begin, "***");
  }
  return details;
}

}  // namespace qvzj::data
