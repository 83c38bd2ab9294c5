#pragma once

/// A moment of the computer's clock, in local time.
struct LocalTime {
    int year = 1970, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0;  ///< hour 0 to 23
};
