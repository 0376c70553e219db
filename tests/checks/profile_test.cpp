#include "checks/profile.h"

#include <gtest/gtest.h>

#include "test_files.h"

namespace zentrel::checks {

namespace {

TEST(Profile, TheShippedProfileHoldsEveryDefault) {
  // The tests run in the program folder, where the shipped profile lies.
  EXPECT_EQ(LoadProfile(DefaultProfilePath(".")), DefaultProfile());
}

TEST(Profile, KeysOverrideTheDefaultsAndTheRestStay) {
  const Profile p = ParseProfile(
      "# mine\r\n\n  title-too-long = error  # stricter\nh1-missing=off\r\n"
      "title.max-pixels = 580\ndescription.min-chars=0",
      "mine.txt");
  Profile expected = DefaultProfile();
  expected.rules[static_cast<size_t>(Rule::TitleTooLong)] = {true, Severity::Error};
  expected.rules[static_cast<size_t>(Rule::H1Missing)].enabled = false;
  expected.titleMaxPixels = 580;
  expected.descriptionMinChars = 0;
  EXPECT_EQ(p, expected);
}

TEST(Profile, BadLinesAreRefusedWithTheFileAndLine) {
  const std::pair<const char*, const char*> bad[] = {
      {"title-missing = error\ntitle-mising = error", "p.txt:2: unknown key \"title-mising\""},
      {"h1-missing = fatal", "p.txt:1: \"fatal\" is no severity"},
      {"title.max-pixels = 60O", "p.txt:1: title.max-pixels must be a whole number from 1"},
      {"title.font-pixels = 0", "p.txt:1: title.font-pixels must be a whole number"},
      {"charset.max-bytes = 99999999999999", "p.txt:1: charset.max-bytes must be"},
      {"\nlegacy-meta", "p.txt:2: expected \"key = value\""},
      {"og-missing = off\nog-missing = notice", "p.txt:2: \"og-missing\" is given twice"},
  };
  for (const auto& [text, message] : bad) {
    try {
      ParseProfile(text, "p.txt");
      ADD_FAILURE() << text;
    } catch (const ProfileError& e) {
      EXPECT_EQ(std::string(e.what()).rfind(message, 0), 0u) << e.what();
    }
  }
  testing::TempFolder folder;
  EXPECT_THROW(LoadProfile(folder.File("missing.txt")), ProfileError);
  EXPECT_THROW(LoadProfile(folder.path().string()), ProfileError);
}

}  // namespace

}  // namespace zentrel::checks
