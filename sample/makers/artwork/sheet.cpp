#include "sheet.h"

namespace artwork {

Picture drawSheet(const Sheet& sheet) {
    Relief relief(sheet.width, sheet.height, sheet.pixelsPerCm);
    sheet.draw(relief);
    if (sheet.damage != nullptr) {
        sheet.damage(relief);
    }
    return develop(relief, sheet.scheme(), sheet.how);
}

} // namespace artwork
