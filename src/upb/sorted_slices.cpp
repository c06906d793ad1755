#include "upb/sorted_slices.hpp"

#include <algorithm>
#include <vector>

namespace kolvar {

void sort_slices(RunState& rs, const Table1<double>& values, Table1<double>& sorted, bool around_rejected) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    std::vector<int> ascending;
    for (int t = low; t <= upp; ++t) {
        rs.MedianWork(t) = values(t);
        if (values(t) < sort_sentinel) ascending.push_back(t);
    }
    std::stable_sort(ascending.begin(), ascending.end(), [&](int a, int b) { return values(a) < values(b); });
    auto next = ascending.begin();
    for (int t = low; t <= upp; ++t) {
        if (around_rejected && rs.RejFlag(t) == 1) continue;
        sorted(t) = sort_sentinel;
        if (next == ascending.end()) continue;
        sorted(t) = values(*next);
        rs.MedianWork(*next++) = sort_sentinel;
    }
}

}  // namespace kolvar
