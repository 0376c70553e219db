// Writes the benchmark pages (100 KB, 1 MB, 4 MB, and the 4 MB page with 200 keywords instead
// of 20) into a folder, for whole-process timing;
// with --heavy, also each heavy input as NAME.html with its preferences file NAME.prefs, and
// their list in heavy.list; with --site N, instead a site of N pages of 20 to 200 KB in
// folders of 100, for lint.

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

// Pages of different contents and sizes spread evenly over 20..200 KB.
void Write_Site(const std::filesystem::path& folder, int pages) {
  for (int i = 0; i < pages; ++i) {
    const std::filesystem::path section = folder / ("section-" + std::to_string(i / 100));
    std::filesystem::create_directories(section);
    const size_t kb = 20 + (static_cast<size_t>(i) * 2654435761u) % 181;
    Write(section / ("page-" + std::to_string(i) + ".html"),
          zentrel::bench::Generate_Page(kb * 1024, static_cast<unsigned>(i + 1)));
  }
}

}  // namespace

int main(int argc, char** argv) {
  const bool heavy = argc == 3 && std::string(argv[1]) == "--heavy";
  const bool site = argc == 4 && std::string(argv[1]) == "--site";
  if (argc != 2 && !heavy && !site) {
    std::cerr << "usage: zentrel-bench-pages [--heavy | --site N] FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[argc - 1];
  if (site) {
    Write_Site(folder, std::stoi(argv[2]));
    return 0;
  }
  std::filesystem::create_directories(folder);
  const std::pair<const char*, size_t> pages[] = {
      {"page-100k.html", 100 * 1024}, {"page-1m.html", 1024 * 1024}, {"page-4m.html", 4 << 20}};
  for (const auto& [name, size] : pages)
    Write(folder / name, zentrel::bench::Generate_Page(size));
  Write(folder / "page-4m-k200.html", zentrel::bench::Generate_Page(4 << 20, 1, 200));
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
