#include "album.h"
#include "catalogue.h"
#include "flat/flat.h"
#include "uniforms/uniforms.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fputs("usage: draw-sample SAMPLE_FOLDER [PART_OF_A_PICTURE_NAME]\n", stderr);
        return 2;
    }
    artwork::Album album(std::filesystem::path(argv[1]) / "Images", argc == 3 ? argv[2] : "");
    for (const auto group : artwork::SheetGroups) {
        album.put(group());
    }
    artwork::drawGround(album);
    artwork::drawFlags(album);
    artwork::drawTracers(album);
    artwork::drawUniforms(album);
    artwork::drawRanks(album);
    return album.failed() ? 2 : 0;
}
