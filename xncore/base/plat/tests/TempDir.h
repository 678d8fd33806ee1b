// A fresh directory for one test, removed with everything in it afterwards.
// It uses the standard library's file system functions, so that the tests set
// up and check files independently of the code under test.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace plat::test {

class TempDir {
public:
  explicit TempDir(const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
    std::string pattern = (parent / "xn_plat_XXXXXX").string();
    if (mkdtemp(pattern.data()))
      root_ = pattern;
    EXPECT_FALSE(root_.empty()) << "no temporary directory in " << parent;
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
  }

  /// The path of `name` inside the directory.
  std::string path(const std::string& name = "") const {
    return name.empty() ? root_.string() : (root_ / name).string();
  }

  /// Creates or replaces a file with `content`; returns its path.
  std::string write(const std::string& name, const std::string& content) const {
    std::string file = path(name);
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
  }

  static std::string read(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }

private:
  std::filesystem::path root_;
};

} // namespace plat::test
