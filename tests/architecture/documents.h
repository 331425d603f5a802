#pragma once

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>
#include <string>
#include <vector>

/// What the documents name: links, places in the tree, tests. Everything works on the text of a
/// document, so that the tests can show that a wrong name is found.
namespace qvzj::architecture {

inline std::vector<std::string> AllMatches(const std::string& text, const std::regex& pattern,
                                           size_t group) {
  std::vector<std::string> found;
  for (auto match = std::sregex_iterator(text.begin(), text.end(), pattern);
       match != std::sregex_iterator(); ++match) {
    found.push_back((*match)[group]);
  }
  return found;
}

/// Targets of the links of a document, those to other machines left out.
inline std::vector<std::string> LinksOf(const std::string& text) {
  static const std::regex kLink(R"(\]\(([^)\s]+)\))");
  std::vector<std::string> links = AllMatches(text, kLink, 1);
  std::erase_if(links, [](const auto& link) { return link.find("://") != std::string::npos; });
  return links;
}

/// The anchors that a document's headings have: lower case, blanks as hyphens, no punctuation.
inline std::set<std::string> AnchorsOf(const std::string& text) {
  static const std::regex kHeading(R"((?:^|\n)#+ ([^\n]+))");
  std::set<std::string> anchors;
  for (const std::string& heading : AllMatches(text, kHeading, 1)) {
    std::string anchor;
    for (const char letter : heading) {
      const auto byte = static_cast<unsigned char>(letter);
      if (std::isalnum(byte) || letter == '-' || letter == '_' || byte >= 0x80) {
        anchor += static_cast<char>(std::tolower(byte));
      } else if (letter == ' ') {
        anchor += '-';
      }
    }
    anchors.insert(anchor);
  }
  return anchors;
}

/// A part of a path that stands for any name, such as NAME.qvs.
inline bool IsPlaceholder(const std::string& path) {
  static const std::regex kCapitals(R"((?:^|/)(?!README)[A-Z]{2,}[A-Z_]*(?:[./]|$))");
  return std::regex_search(path, kCapitals);
}

/// Places in the tree that a document names: words that begin with one of the directories `tops`,
/// without those that stand for any name.
inline std::vector<std::string> PathsOf(const std::string& text,
                                        const std::vector<std::string>& tops) {
  static const std::regex kPath(R"((?:^|[\s`("|=])([A-Za-z]+/[A-Za-z0-9_./-]*))");
  std::vector<std::string> paths;
  for (std::string path : AllMatches(text, kPath, 1)) {
    const std::string top = path.substr(0, path.find('/'));
    if (std::find(tops.begin(), tops.end(), top) == tops.end()) continue;
    while (path.ends_with('.')) path.pop_back();
    if (!IsPlaceholder(path)) paths.push_back(path);
  }
  return paths;
}

/// One line of a table of decisions: what | why | test.
struct Decision {
  std::string what;
  std::vector<std::string> tests;  ///< as the last column names them: `Suite.Name` or `Suite.*`
};

/// The lines of all tables of decisions of a document, headings left out.
inline std::vector<Decision> DecisionsOf(const std::string& text) {
  static const std::regex kRow(R"((?:^|\n)\|([^\n]*)\|([^\n|]*)\|(?=\n|$))");
  static const std::regex kName(R"(`([A-Za-z0-9_]+\.(?:[A-Za-z0-9_]+|\*))`)");
  std::vector<Decision> decisions;
  for (auto row = std::sregex_iterator(text.begin(), text.end(), kRow);
       row != std::sregex_iterator(); ++row) {
    const std::string what = (*row)[1];
    const std::string tests = (*row)[2];
    if (tests == " test " || tests.starts_with("---")) continue;
    decisions.push_back({what, AllMatches(tests, kName, 1)});
  }
  return decisions;
}

/// Names of the tests that a source or a CMakeLists.txt declares.
inline std::vector<std::string> TestsOf(const std::string& text) {
  static const std::regex kTest(R"(TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\))");
  static const std::regex kAdded(R"(add_test\(NAME (\w+\.\w+))");
  std::vector<std::string> names = AllMatches(text, kAdded, 1);
  for (auto test = std::sregex_iterator(text.begin(), text.end(), kTest);
       test != std::sregex_iterator(); ++test) {
    names.push_back((*test)[1].str() + "." + (*test)[2].str());
  }
  return names;
}

}  // namespace qvzj::architecture
