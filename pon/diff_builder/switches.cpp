#include "pon/diff_builder/switches.h"

#include "pon/diff_builder.h"

int print_all = 0;
int print_common = 1;

bool pondiff::forced(Rule rule)
{
    if (print_all == 0) {
        return false;
    }
    switch (rule) {
    case changed_or_all:
        return true;
    case changed_or_common:
        return print_common == 1 || print_common == 2;
    case changed_or_profile_common:
        return print_common == 2;
    case changed_only:
        break;
    }
    return false;
}
