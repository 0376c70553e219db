#include "cli/cli.h"

namespace zentrel::cli {

int Run_Cli(const std::vector<std::string>&, std::ostream&, std::ostream& err, const std::string&) {
  err << "zentrel-cli: not built yet\n";
  return 2;
}

}  // namespace zentrel::cli
