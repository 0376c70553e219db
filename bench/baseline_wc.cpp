// The baseline process: read a file and count its words in one pass with a 256-entry table.

#include <array>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: zentrel-baseline FILE\n";
    return 2;
  }
  std::ifstream in(argv[1], std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  std::array<bool, 256> letter{};
  for (int c = 33; c < 256; ++c)
    letter[static_cast<size_t>(c)] = c != '<' && c != '>';
  long words = 0;
  bool inside = false;
  for (unsigned char c : bytes) {
    words += letter[c] && !inside;
    inside = letter[c];
  }
  std::printf("%ld\n", words);
  return 0;
}
