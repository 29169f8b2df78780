#include "app/workspace/visits/visits.h"

#include <utility>

namespace varrocade {

void Visits::note(Visit visit) {
    if (present_ < visits_.size() && visits_[present_] == visit) {
        return;
    }
    if (!visits_.empty()) {
        visits_.resize(present_ + 1);
    }
    if (visits_.size() == Most) {
        visits_.erase(visits_.begin());
    }
    visits_.push_back(std::move(visit));
    present_ = visits_.size() - 1;
}

void Visits::rename(const Visit& former, const std::string& name) {
    for (Visit& visit : visits_) {
        if (visit == former) {
            visit.name = name;
        }
    }
}

} // namespace varrocade
