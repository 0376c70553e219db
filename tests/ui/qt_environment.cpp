#include <memory>

#include "ui_test_support.h"

namespace zentrel::testing {

namespace {

class QtEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
      qputenv("QT_QPA_PLATFORM", "offscreen");
    app_ = std::make_unique<QApplication>(argc_, argv_);
  }
  void TearDown() override { app_.reset(); }

 private:
  int argc_ = 1;
  char name_[9] = "ui_tests";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> app_;
};

[[maybe_unused]] ::testing::Environment* const environment =
    ::testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace

QApplication& App() {
  return *qApp;
}

}  // namespace zentrel::testing
