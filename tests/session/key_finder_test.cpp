// The key finder takes brinto-cli's names and aliases, full names and faces, and offers keys
// while a name is being typed.
#include <gtest/gtest.h>

#include "session/key_finder.h"

namespace brinto {
namespace {

TEST(KeyFinder, NamesAliasesFullNamesAndFacesFindTheirKey) {
    struct Case {
        const char* typed;
        std::optional<FunctionId> key;
    };
    const Case cases[] = {
        {"sqrt", fid::SquareRoot},    {"x^2", fid::Square},        {"PV", fid::PV},
        {"sin", fid::Sin},            {"Square root", fid::SquareRoot}, {"  square ROOT ", fid::SquareRoot},
        {"√x", fid::SquareRoot},      {"+", fid::Add},             {"shift", fid::Shift},
        {"", std::nullopt},           {"squ", std::nullopt},       {"no such key", std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        EXPECT_EQ(FindKey(c.typed), c.key);
    }
}

TEST(KeyFinder, OffersExactThenStartingThenHoldingKeysOnce) {
    // "sq": names starting with it (sq, sqrt, sqfeet...) before full names holding it.
    const std::vector<KeyChoice> sq = OfferKeys("sq", 50);
    ASSERT_GE(sq.size(), 3u);
    EXPECT_EQ(sq[0].id, fid::Square);  // the exact name leads
    EXPECT_EQ(sq[1].id, fid::SquareRoot);
    for (std::size_t i = 0; i < sq.size(); ++i) {
        for (std::size_t j = i + 1; j < sq.size(); ++j) EXPECT_NE(sq[i].id, sq[j].id);
    }
    // "root" is in no name but in full names: square root, cube root, x-th root.
    const std::vector<KeyChoice> root = OfferKeys("root", 50);
    const auto offered = [&](FunctionId id) {
        return std::any_of(root.begin(), root.end(), [id](const KeyChoice& c) { return c.id == id; });
    };
    EXPECT_TRUE(offered(fid::SquareRoot));
    EXPECT_TRUE(offered(fid::CubeRoot));
    EXPECT_EQ(OfferKeys("s", 4).size(), 4u);
    EXPECT_TRUE(OfferKeys("   ", 10).empty());
}

// A translated window finds a key by the meaning it shows as well as by the English one.
TEST(KeyFinder, KeysAreFoundByTheMeaningTheWindowShows) {
    const ShownMeaning german = [](std::string_view english) -> std::string {
        if (english == "Square root") return "Quadratwurzel";
        if (english == "Cube root") return "Kubikwurzel";
        return std::string(english);
    };
    EXPECT_EQ(FindKey("quadratwurzel", german), fid::SquareRoot);
    EXPECT_EQ(FindKey("Square root", german), fid::SquareRoot);
    EXPECT_EQ(FindKey("Quadratwurzel"), std::nullopt);
    const std::vector<KeyChoice> wurzel = OfferKeys("wurzel", 10, german);
    ASSERT_EQ(wurzel.size(), 2u);
    EXPECT_EQ(wurzel[0].id, fid::SquareRoot);
    EXPECT_EQ(wurzel[1].id, fid::CubeRoot);
    EXPECT_EQ(OfferKeys("Kubik", 10, german).at(0).id, fid::CubeRoot);
}

}  // namespace
}  // namespace brinto
