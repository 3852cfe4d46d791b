#include "support/catalogue/Catalogue.h"

namespace math::test
{

std::vector<ConstOperation> AllConstOperations()
{
    std::vector<ConstOperation> all;
    for (const auto* list :
         {&PrimitiveOperations, &KernelOperations, &PointerForms, &OutlineOperations, &PositionOperations})
    {
        all.insert(all.end(), list->begin(), list->end());
    }
    return all;
}

std::vector<ChangingOperation> AllChangingOperations()
{
    std::vector<ChangingOperation> all;
    for (const auto* list : {&ChangingPrimitiveOperations, &ChangingKernelOperations, &VectorForms,
                             &ChangingOutlineOperations, &ChangingPositionOperations})
    {
        all.insert(all.end(), list->begin(), list->end());
    }
    return all;
}

} // namespace math::test
