#include "app/workspace/positions.h"

#include "app/commands/open_record.h"
#include "app/windows/application.h"
#include "platform/messages.h"

namespace varrocade {

bool mayLeavePositions() {
    Application& app = application();
    const std::string_view question = unsavedPositionsQuestion(app.openUnit.has_value(), app.category,
                                                               app.weaponPosChanged, app.exhaustPosChanged);
    if (question.empty()) {
        return true;
    }
    const Answer answer = showMessage({.text = std::string(question),
                                       .caption = "Save changes",
                                       .buttons = MessageButtons::YesNoCancel,
                                       .icon = MessageIcon::Question});
    if (answer == Answer::Cancel) {
        return false;
    }
    if (answer == Answer::Yes) {
        if (saveOpenRecord() == SaveResult::Failed) {
            return false;
        }
        app.weaponPosChanged = false;
        app.exhaustPosChanged = false;
    }
    return true;
}

} // namespace varrocade
