#include "core/platform.hpp"

#include <gtest/gtest.h>

#include "core/fault.hpp"

namespace kolvar {
namespace {

TEST(Clock, DateHasNoLeadingZeroAndAMonthWithAPoint) {
    EXPECT_EQ(date_text({2009, 1, 7, 14, 3, 22}), "7 Jan. 2009");
    EXPECT_EQ(date_text({2004, 12, 19, 0, 0, 0}), "19 Dec. 2004");
    EXPECT_EQ(date_text({2010, 5, 1, 0, 0, 0}), "1 May. 2010");
    const char* const months[] = {"Jan.", "Feb.", "Mar.", "Apr.", "May.", "Jun.",
                                  "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(date_text({2000, month, 31, 0, 0, 0}), std::string("31 ") + months[month - 1] + " 2000");
    }
}

TEST(Clock, AMonthThatIsNoneIsAFault) {
    EXPECT_THROW(date_text({2009, 0, 7, 0, 0, 0}), Fault);
    EXPECT_THROW(date_text({2009, 13, 7, 0, 0, 0}), Fault);
}

TEST(Clock, TimeOfDayHasTwoDigitsEach) {
    EXPECT_EQ(time_text({2009, 1, 7, 14, 3, 22}), "14:03:22");
    EXPECT_EQ(time_text({2009, 1, 7, 0, 0, 9}), "00:00:09");
}

}  // namespace
}  // namespace kolvar
