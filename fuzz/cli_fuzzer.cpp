// brinto-cli's options and tokens: an argument vector and standard input made from the bytes.
// Nothing may touch the disk, so the in-memory store is forced and every option naming a file is
// dropped with its value; output goes nowhere.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "cli/cli.h"
#include "fuzz_check.h"
#include "fuzz_input.h"

namespace {

// Options whose value names a file.
bool NamesFile(const std::string& arg) {
    return arg.rfind("--db", 0) == 0 || arg.rfind("--import", 0) == 0 || arg.rfind("--export", 0) == 0;
}

}  // namespace

// Layout: one byte of flags, then the arguments separated by newlines; with flag 0x01 a NUL byte
// ends the arguments and the rest is standard input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brinto::fuzz::ByteReader in(data, size);
    const std::uint8_t flags = in.U8();
    const std::string_view rest = in.Rest();
    std::string_view argText = rest;
    std::string stdinText;
    if (flags & 0x01) {
        const std::size_t nul = rest.find('\0');
        if (nul != std::string_view::npos) {
            argText = rest.substr(0, nul);
            stdinText = std::string(rest.substr(nul + 1));
        }
    }

    std::vector<std::string> raw;
    std::size_t start = 0;
    while (start <= argText.size()) {
        const std::size_t end = std::min(argText.find('\n', start), argText.size());
        if (end > start || (flags & 0x02)) raw.emplace_back(argText.substr(start, end - start));
        start = end + 1;
    }
    std::vector<std::string> args{"--memory"};
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (NamesFile(raw[i])) {
            if (i + 1 < raw.size()) ++i;  // its value too; a trailing one stays as the error it is
            else args.push_back(raw[i]);
            continue;
        }
        args.push_back(raw[i]);
    }

    std::istringstream input(stdinText);
    brinto::fuzz::NullBuffer nothing;
    std::ostream out(&nothing);
    std::ostream err(&nothing);
    const int status = brinto::RunCli(args, input, (flags & 0x08) != 0, out, err);
    FUZZ_CHECK(status == 0 || status == 2, "brinto-cli exit status other than 0 or 2");
    return 0;
}
