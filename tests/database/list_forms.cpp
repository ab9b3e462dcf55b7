// Prints the listing that tests/data/forms.txt holds: list_forms > tests/data/forms.txt

#include <cstdio>

#include "form_listing.h"

int main()
{
    std::fputs(qv::test::listForms().c_str(), stdout);
    return 0;
}
