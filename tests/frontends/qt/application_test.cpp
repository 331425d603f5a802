#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace qvzj::test {
namespace {

/// The one application object of the test program, without a display.
class ApplicationEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
    QApplication::setStyle("Fusion");
  }
  void TearDown() override { application_.reset(); }

 private:
  char name_[8] = "qt_test";
  char* arguments_[2] = {name_, nullptr};
  int count_ = 1;
  std::unique_ptr<QApplication> application_;
};

const auto* const kEnvironment =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment);  // owned by the framework

}  // namespace
}  // namespace qvzj::test
