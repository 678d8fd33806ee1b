// Command lines, split from the input at NUL bytes, applied to a group with a
// parameter of each type. Invariants: only plat::Exception escapes, and only
// a bad argument or bad UTF-8; a help request reaches the help function with
// a valid mode; after parsing every parameter still holds a value its type
// allows; and the help text and value dump can be made of whatever was set.
#include "FuzzCheck.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/ParameterAlias.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"
#include "plat/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

using xnfuzz::check;

const char* const levels[] = {"Low", "Medium", "High", nullptr};

std::FILE* discard() {
  static std::FILE* sink = std::fopen("/dev/null", "w");
  return sink;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<std::string> pieces(1);
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == 0)
      pieces.emplace_back();
    else
      pieces.back().push_back(static_cast<char>(data[i]));
  }
  std::vector<const char*> argv;
  for (const std::string& piece : pieces)
    argv.push_back(piece.c_str());
  argv.push_back(nullptr);

  plat::Configuration group("Fuzz", nullptr);
  plat::Configuration child("Child", nullptr);
  group.addSubgroup(&child);
  plat::BoolParameter flag("Flag", "A flag", false, false, &group);
  plat::IntParameter count("Count", "How many", 5, false, &group, 0, 100);
  plat::EnumParameter level("Level", "How loud", "Medium", levels, false, &group);
  plat::StringParameter text("Text", "Words", "", false, &group);
  plat::S64Parameter big("Big", "Large", 0, false, &child);
  plat::BinaryParameter blob("Blob", "Bytes", plat::MBuf<unsigned char>(0, true), false, &child);
  plat::BoolParameter hidden("_Hidden", "Internal", false, true, &child);
  plat::ParameterAlias old("Old", count, &group);

  int helpCalls = 0;
  auto help = [&](int mode, plat::Configuration& configuration) {
    check(&configuration == &group);
    check(mode >= plat::Configuration::helpPlain && mode <= plat::Configuration::helpXml);
    ++helpCalls;
  };
  try {
    group.parseArgs(argv.data(), help);
    check(helpCalls == 0);
  } catch (const plat::Exception& failure) {
    check(std::strcmp(failure.type(), "BadCmdLineArg") == 0 ||
          std::strcmp(failure.type(), "BadUtf8") == 0);
    if (std::strcmp(failure.type(), "BadCmdLineArg") == 0)
      check(std::strncmp(failure.what(), "Bad argument '", 14) == 0);
    check(helpCalls <= 1);
  }

  check(count.getInt() >= 0 && count.getInt() <= 100);
  check(level.getInt() >= 0 && level.getInt() <= 2);
  check(plat::isValidUtf8(text.getValueString().get()));
  check(std::strlen(big.getValueString().get()) == 22);
  plat::MBuf<unsigned char> bytes;
  blob.getBinary(bytes);
  check(bytes.isSecure());

  group.printHelp(true, true, discard());
  group.logValues();
  return 0;
}
