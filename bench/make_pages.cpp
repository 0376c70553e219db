// Writes the benchmark pages (100 KB, 1 MB, 4 MB) into a folder, for whole-process timing;
// with --heavy, also each heavy input as NAME.html with its preferences file NAME.prefs, and
// their list in heavy.list.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "heavy_inputs.h"
#include "page_generator.h"

namespace {

void Write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

int main(int argc, char** argv) {
  const bool heavy = argc == 3 && std::string(argv[1]) == "--heavy";
  if (argc != 2 && !heavy) {
    std::cerr << "usage: zentrel-bench-pages [--heavy] FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[argc - 1];
  std::filesystem::create_directories(folder);
  const std::pair<const char*, size_t> pages[] = {
      {"page-100k.html", 100 * 1024}, {"page-1m.html", 1024 * 1024}, {"page-4m.html", 4 << 20}};
  for (const auto& [name, size] : pages)
    Write(folder / name, zentrel::bench::Generate_Page(size));
  if (heavy) {
    std::string list;  // name, tab, and whether its report alone may pass the memory ceiling
    for (const zentrel::bench::Heavy_Input& input : zentrel::bench::Heavy_Inputs()) {
      Write(folder / (std::string(input.name) + ".html"), input.page());
      Write(folder / (std::string(input.name) + ".prefs"), input.prefs());
      list += std::string(input.name) + (input.bigReport ? "\treport\n" : "\tceiling\n");
    }
    Write(folder / "heavy.list", list);
  }
  return 0;
}
