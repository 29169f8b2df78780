// Compares the parser with the plain algorithm on any bytes.

#include "../unit/tag_tree_model.h"
#include "round_trip.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const std::string difference = tests::differenceFromModel(content);
    fuzz::require(difference.empty(), "the tree is another", content, difference);
    return 0;
}
