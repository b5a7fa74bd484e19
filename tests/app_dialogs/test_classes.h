#pragma once
// Each test file registers its class here, so main runs them all.
#include <QObject>
#include <functional>
#include <memory>
#include <vector>

namespace brinto::test {

using MakeTests = std::function<std::unique_ptr<QObject>()>;
std::vector<MakeTests>& TestClasses();

template <typename T>
struct RegisterTests {
    RegisterTests() { TestClasses().push_back([] { return std::make_unique<T>(); }); }
};

}  // namespace brinto::test
