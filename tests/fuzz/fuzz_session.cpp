#include "fuzz_session.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "commands/startup.h"
#include "document/document_cache.h"

namespace zentrel::fuzz {

AppState& Started_State() {
  static state::SilentPlatform platform;
  static const AppState started = [] {
    AppState s(platform);
    commands::Form_Load(s);
    return s;
  }();
  // Assigning into one long-lived state reuses its strings' storage: far fewer allocations
  // per input than a fresh copy, which matters under the sanitizers.
  static AppState state = started;
  state = started;
  return state;
}

std::string Scratch_Path(const std::string& name) {
  static const std::string folder = [] {
    std::string base = std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp";
    std::string dir = base + "/zentrel-fuzz-" + std::to_string(::getpid());
    std::filesystem::create_directories(dir);
    return dir;
  }();
  return folder + "/" + name;
}

void Put_Page(AppState& s, const std::string& bytes) {
  s.Form.Html_Document_Editor = bytes;
  s.DocumentLength = document::Reload_File_From_Memory_TO_Cache(s);
}

void Require(bool condition, const char* property) {
  if (!condition) {
    std::fprintf(stderr, "property failed: %s\n", property);
    std::abort();
  }
}

uint8_t Input::Byte() {
  if (size_ == 0)
    return 0;
  --size_;
  return *data_++;
}

std::string Input::Piece(size_t maxLength) {
  size_t n = std::min<size_t>(Byte() % (maxLength + 1), size_);
  std::string piece(reinterpret_cast<const char*>(data_), n);
  data_ += n;
  size_ -= n;
  return piece;
}

std::string Input::Rest() {
  std::string rest(reinterpret_cast<const char*>(data_), size_);
  size_ = 0;
  return rest;
}

}  // namespace zentrel::fuzz
