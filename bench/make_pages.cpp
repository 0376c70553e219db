// Writes the benchmark pages (100 KB, 1 MB, 4 MB) into a folder, for whole-process timing.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "page_generator.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: zentrel-bench-pages FOLDER\n";
    return 2;
  }
  std::filesystem::create_directories(argv[1]);
  const std::pair<const char*, size_t> pages[] = {
      {"page-100k.html", 100 * 1024}, {"page-1m.html", 1024 * 1024}, {"page-4m.html", 4 << 20}};
  for (const auto& [name, size] : pages) {
    std::ofstream out(std::filesystem::path(argv[1]) / name, std::ios::binary);
    std::string page = zentrel::bench::Generate_Page(size);
    out.write(page.data(), static_cast<std::streamsize>(page.size()));
  }
  return 0;
}
