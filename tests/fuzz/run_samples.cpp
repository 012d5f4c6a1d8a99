// run_samples FILE...: hands each file, and the empty input, to a fuzz target that was built
// without a fuzzer. An input that the target cannot bear ends the program.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void run(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int argc, char** argv) {
  run("");
  for (int i = 1; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    if (!file) {
      std::fprintf(stderr, "cannot read %s\n", argv[i]);
      return 1;
    }
    run({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
  }
  return 0;
}
