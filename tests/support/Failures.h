#pragma once

#include <Standard_Failure.hxx>
#include <gtest/gtest.h>

#include <string>

// Exceptions of Open CASCADE are no std::exception; what tells them apart is their dynamic type and their message.

namespace math::test
{

/// Calls `action` and tells whether it raised a Standard_Failure of exactly this type and message.
template <typename Action>
::testing::AssertionResult Raises(const std::string& typeName, const std::string& message, Action&& action)
{
    try
    {
        action();
    }
    catch (const Standard_Failure& failure)
    {
        const std::string raisedName = failure.DynamicType()->Name();
        const std::string raisedMessage = failure.GetMessageString();
        if (raisedName == typeName && raisedMessage == message)
        {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "raised " << raisedName << " \"" << raisedMessage << "\"";
    }
    catch (...)
    {
        return ::testing::AssertionFailure() << "raised something that is no Standard_Failure";
    }
    return ::testing::AssertionFailure() << "raised nothing";
}

} // namespace math::test
