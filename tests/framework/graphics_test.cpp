// Who owns graphics objects and device contexts.

#include "support/WindowTest.h"

TEST_F(WindowTest, ContextsOfAWindowAreReleased)
{
    const auto useAll = [this] {
        CClientDC client(&Host());
        CWindowDC window(&Host());
        CPaintDC paint(&Host());
    };
    useAll(); // the platform keeps its first contexts
    const int before = GraphicsObjects();
    for (int round = 0; round < 50; ++round)
    {
        useAll();
    }
    EXPECT_EQ(GraphicsObjects(), before);
}
