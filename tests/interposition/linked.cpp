// The imposter comes first because it is linked first, or because LD_PRELOAD names it.

#include "checks.h"

int main()
{
    return CheckBesideImposter() == 0 ? 0 : 1;
}
