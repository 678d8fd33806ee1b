#include "oxnpermissionscreator/EntryFrame.h"

int main(int argc, char** argv) {
  return app::runProgram(argc, argv);
}
