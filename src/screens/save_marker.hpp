// The word that tells the taking of a window's values that they are to be saved as well.
#pragma once

#include "core/run_state.hpp"

namespace kolvar {

inline constexpr const char* save_marker = "tenyleg szevelni";

// The marker stands while the save is under way and goes however it ends: a save that was refused must not come up
// again with the next Apply.
class SaveUnderWay {
public:
    explicit SaveUnderWay(RunState& rs) : rs_(rs) { rs.SaveRequest = save_marker; }
    ~SaveUnderWay() { rs_.SaveRequest.clear(); }
    SaveUnderWay(const SaveUnderWay&) = delete;
    SaveUnderWay& operator=(const SaveUnderWay&) = delete;

private:
    RunState& rs_;
};

}  // namespace kolvar
