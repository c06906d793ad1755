#include "upb/ratio_fields.hpp"

namespace kolvar {

const std::array<RatioFields, ratio_count>& ratio_fields() {
    using R = RunState;
    static constexpr std::array<RatioFields, ratio_count> table{{
        {&R::Rat68, &R::ColPb206, &R::ColU238, nullptr, &R::Mean68, &R::Med68, &R::SD68, &R::Err68, &R::Slope68,
         &R::Icpt68, &R::Corr68, &R::Tz68, &R::ResSD68, &R::TzErr68, &R::setOL_68},
        {&R::Rat75, &R::ColPb207, &R::ColU235, &R::ColU235, &R::Mean75, &R::Med75, &R::SD75, &R::Err75, &R::Slope75,
         &R::Icpt75, &R::Corr75, &R::Tz75, &R::ResSD75, &R::TzErr75, &R::setOL_75},
        {&R::Rat82, &R::ColPb208, &R::ColTh232, &R::ColTh232, &R::Mean82, &R::Med82, &R::SD82, &R::Err82, &R::Slope82,
         &R::Icpt82, &R::Corr82, &R::Tz82, &R::ResSD82, &R::TzErr82, &R::setOL_082},
        {&R::Rat382, &R::ColU238, &R::ColTh232, &R::ColTh232, &R::Mean382, &R::Med382, &R::SD382, &R::Err382,
         &R::Slope382, &R::Icpt382, &R::Corr382, &R::Tz382, &R::ResSD382, &R::TzErr382, &R::setOL_382},
        {&R::Rat76, &R::ColPb207, &R::ColPb206, nullptr, &R::Mean76, &R::Med76, &R::SD76, &R::Err76, &R::Slope76,
         &R::Icpt76, &R::Corr76, &R::Tz76, &R::ResSD76, &R::TzErr76, &R::setOL_76},
    }};
    return table;
}

}  // namespace kolvar
