#include <afxtempl.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Letters = CTypedPtrList<CPtrList, char*>;

std::string Forwards(const Letters& list)
{
    std::string texts;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;)
    {
        texts += list.GetNext(at);
    }
    return texts;
}

TEST(PtrList, KeepsItsPlacesThroughInsertionsAndRemovals)
{
    char a[] = "a";
    char b[] = "b";
    char c[] = "c";
    char d[] = "d";
    char e[] = "e";
    char x[] = "x";
    Letters list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    list.AddTail(b);
    const POSITION fourth = list.AddTail(d);
    list.AddHead(a);
    list.InsertBefore(fourth, c);
    list.InsertAfter(fourth, e);
    EXPECT_EQ(Forwards(list), "abcde");
    std::string backwards;
    for (POSITION at = list.GetTailPosition(); at != nullptr;)
    {
        backwards += list.GetPrev(at);
    }
    EXPECT_EQ(backwards, "edcba");
    list.SetAt(fourth, x);
    EXPECT_EQ(list.RemoveHead(), a);
    EXPECT_EQ(list.RemoveTail(), e);
    EXPECT_EQ(list.GetAt(fourth), x);
    list.RemoveAt(list.FindIndex(1));
    EXPECT_EQ(Forwards(list), "bx");
    EXPECT_EQ(list.FindIndex(2), nullptr);

    Letters more;
    more.AddTail(c);
    more.AddTail(&list);
    more.AddHead(&list);
    EXPECT_EQ(Forwards(more), "bxcbx");
    const POSITION first = more.Find(b);
    EXPECT_EQ(first, more.GetHeadPosition());
    EXPECT_EQ(more.Find(b, first), more.FindIndex(3));
    EXPECT_EQ(more.Find(nullptr), nullptr);
    more.RemoveAll();
    EXPECT_EQ(more.GetCount(), 0);
}

} // namespace
