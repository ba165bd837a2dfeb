// The ten containers are one behind their names: the cases run over three of them.

#include "tests/model/memory_probe.h"
#include <charteditors/charteditors.h>
#include <string>

namespace {
CChartString& textOf(CChartString& element) { return element; }
CChartString& textOf(CChartColor& element) { return element.m_patternFile; }
CChartString& textOf(CPieChartSector& element) { return element.m_text; }

void mark(auto& element, int number) { textOf(element) = std::to_string(number).c_str(); }

template <class Element> std::string markOf(const Element& element) {
    return textOf(const_cast<Element&>(element)).data();
}

template <class Container> class ContainerTest : public testing::Test {
protected:
    using Element = std::remove_reference_t<decltype(std::declval<Container&>()[0])>;

    static Container filled(int count) {
        Container list;
        for (int i = 0; i < count; i++) {
            Element element;
            mark(element, i);
            list.push_back(element);
        }
        return list;
    }

    static std::string marks(const Container& list) {
        std::string result;
        for (int i = list.begin(); i < list.size(); i++) result += markOf(list[i]);
        EXPECT_EQ(list.empty(), result.empty());
        return result;
    }
};

using Containers = testing::Types<CChartStrings, CChartColors, CPieChartSectors>;
TYPED_TEST_SUITE(ContainerTest, Containers);
} // namespace

TYPED_TEST(ContainerTest, StartsEmptyAndTakesNoMemory) {
    const long before = model_test::allocations();
    const TypeParam list;
    const TypeParam copy = list;
    EXPECT_EQS((model_test::allocations(), before), (list.size(), 0), (copy.empty(), true), (list.begin(), 0));
}

TYPED_TEST(ContainerTest, KeepsOrderThroughGrowthAndErasing) {
    TypeParam list = this->filled(9);
    EXPECT_EQ(this->marks(list), "012345678");
    list.erase(list.begin() + 8);
    list.erase(list.begin());
    list.erase(list.begin() + 3);
    EXPECT_EQ(this->marks(list), "123567");
    while (!list.empty()) list.erase(0);
    EXPECT_EQ(list.size(), 0);
    list.push_back(this->filled(1)[0]);
    EXPECT_EQ(this->marks(list), "0");
}

TYPED_TEST(ContainerTest, PushesItsOwnElementsWhileGrowing) {
    TypeParam list = this->filled(1);
    for (int i = 0; i < 4; i++) {
        list.push_back(list[0]);
        mark(list[list.size() - 1], i + 1);
        list.push_back(list[list.size() - 1]);
    }
    EXPECT_EQ(this->marks(list), "011223344");
}

TYPED_TEST(ContainerTest, AssignsInPlaceOrAnew) {
    for (int from : {0, 1, 3, 8})
        for (int to : {0, 1, 3, 8}) {
            TypeParam list = this->filled(to);
            const TypeParam source = this->filled(from);
            list = source;
            EXPECT_EQ(this->marks(list), this->marks(source)) << from << " over " << to;
            if (from > 0) {
                mark(list[0], 9);
                EXPECT_EQ(markOf(source[0]), "0") << "copies share nothing";
            }
        }
    TypeParam list = this->filled(3);
    list = *&list;
    EXPECT_EQ(this->marks(list), "012");

    // Room is kept when a shorter list comes in: an element of known address stays where it is.
    const auto* const first = &list[0];
    list = this->filled(1);
    list.push_back(this->filled(2)[1]);
    EXPECT_EQ(&list[0], first);
}

TYPED_TEST(ContainerTest, StaysAsItWasWhenMemoryRunsOut) {
    TypeParam list = this->filled(4); // a power of two, so that the next one grows
    const TypeParam other = this->filled(20);
    const auto unchanged = [&] { EXPECT_EQ(this->marks(list), "0123"); };
    const int copying = model_test::failEachAllocation([&] { list = other; }, unchanged);
    EXPECT_GE(copying, 2);
    EXPECT_EQ(list.size(), 20);

    list = this->filled(4);
    TypeParam grown = list;
    const int pushing = model_test::failEachAllocation([&] { grown.push_back(list[3]); },
                                                       [&] { EXPECT_EQ(this->marks(grown), "0123"); });
    EXPECT_GE(pushing, 2);
    EXPECT_EQ(this->marks(grown), "01233");
}
