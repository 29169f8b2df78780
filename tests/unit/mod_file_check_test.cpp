// What is told of a "Mod.txt" that cannot be read as it is meant.

#include "tools/checks/engine/mod_file_check.h"

#include "data/finding_text.h"

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

TEST(ModFileCheck, TellsWhatIsNotReadAsItIsMeant) {
    struct Case {
        std::string text;
        std::string told; ///< keys and lines
        bool hides;
    };
    std::string deep = "<mod>";
    for (int i = 0; i < 5000; ++i) {
        deep += "<a" + std::to_string(i) + ">";
    }
    const std::vector<Case> cases = {
        {"// mine\r\n<mod>\r\n\t<name>A</name> // so\r\n\t<mine><x>1</x></mine>\r\n</mod>\r\n", "", false},
        {"", "empty-file 1", true},
        {"\xEF\xBB\xBF<mod><name>A</name></mod>", "empty-file 1", true},
        {"<other><name>A</name></other>", "empty-file 1", true},
        {"<mod>\n<years>\n<first>1941</first>\n</mod>", "unclosed-element 2", true},
        {"<mod>\n<credits>\n<line>A</line> <line>B</line>\n</credits> </mod>", "stray-text 3", true},
        {"<mod>\n<name>A</name>\nstray\n<author>B</author></mod>", "stray-text 3", true},
        {"<mod>\n<years><first_month>99</first_month>\n<last>x</last></years></mod>",
         "out-of-range 2 not-a-number 3", false},
        {"<mod><nationality>\n<id>NATIONALITY_FOO</id>\n"
         "<allegiance><side>SIDE_THIRD</side></allegiance></nationality></mod>",
         "unknown-word 2 unknown-word 3", false},
        {deep, "unclosed-element 1", true},
        {std::string(std::size_t{5} << 20U, '<'), "", false},
    };
    for (const Case& one : cases) {
        std::string told;
        bool hides = false;
        for (const Finding& finding : checkModFile(one.text)) {
            told += (told.empty() ? "" : " ") + std::string(finding.key) + " " + std::to_string(finding.line);
            hides = hides || hidesSettings(finding);
            EXPECT_EQ(finding.file, "Mod.txt");
        }
        EXPECT_EQ(told, one.told) << one.text.substr(0, 80);
        EXPECT_EQ(hides, one.hides) << one.text.substr(0, 80);
    }
}

} // namespace
} // namespace varrocade::tests
