// brinto-guide-gen GUIDE [--check]: rewrites the generated sections of the user guide from the
// calculator's tables. With --check it writes nothing and exits 1 when the guide is out of date.
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>

#include "guide/guide_sections.h"

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3 || (argc == 3 && std::strcmp(argv[2], "--check") != 0)) {
        std::cerr << "usage: brinto-guide-gen GUIDE [--check]\n";
        return 2;
    }
    std::ifstream in(argv[1], std::ios::binary);
    if (!in) {
        std::cerr << "brinto-guide-gen: cannot read " << argv[1] << "\n";
        return 2;
    }
    std::ostringstream text;
    text << in.rdbuf();
    std::string problem;
    const auto refreshed = brinto::RefreshGuide(text.str(), &problem);
    if (!refreshed) {
        std::cerr << "brinto-guide-gen: " << argv[1] << ": " << problem << "\n";
        return 2;
    }
    if (argc == 3) return *refreshed == text.str() ? 0 : 1;
    if (*refreshed != text.str()) {
        std::ofstream out(argv[1], std::ios::binary | std::ios::trunc);
        out << *refreshed;
        if (!out) {
            std::cerr << "brinto-guide-gen: cannot write " << argv[1] << "\n";
            return 2;
        }
    }
    return 0;
}
