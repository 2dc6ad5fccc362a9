// The copies of lists in the rows of a hidden one.
#include "explorer/list_snapshots.h"

#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

using explorer::SnapshotHeader;

class ListSnapshots : public ExplorerTest {
 protected:
  void Take(const std::string& component, const std::vector<std::string>& rows, long listIndex = 0) {
    if (!snapshots.Begin({component, 3, listIndex, false}, false)) return;
    for (const std::string& row : rows) snapshots.Add(row, static_cast<long>(row.size()));
    snapshots.End();
  }
  std::vector<std::string> Copied(long position) {
    std::vector<std::string> rows;
    for (long row = snapshots.FirstRow(position); row < snapshots.RowsEnd(position); ++row)
      rows.push_back(form.lstSave.List(row));
    return rows;
  }

  explorer::ListSnapshots snapshots{form.lstSave};
};

TEST_F(ListSnapshots, StandOneBehindTheOther) {
  Take("frmMain", {"a", "bb"}, 1);
  Take("modMain", {"ccc"});
  EXPECT_THAT(Rows(form.lstSave), ElementsAre("frmMain+()+ +|1", "a", "bb", "modMain+()+ +|0", "ccc"));
  EXPECT_EQ(form.lstSave.ItemData(0), 3) << "of the component row";
  EXPECT_EQ(form.lstSave.ItemData(2), 2);
  EXPECT_THAT(Copied(1), ElementsAre("a", "bb"));
  EXPECT_THAT(Copied(2), ElementsAre("ccc"));
  EXPECT_EQ(snapshots.snapPos, 2);
}

TEST_F(ListSnapshots, HeaderOfTheCodeViewBeginsWithStars) {
  ASSERT_TRUE(snapshots.Begin({"frmMain", 3, 2, true}, false));
  snapshots.End();
  EXPECT_THAT(Rows(form.lstSave), ElementsAre("***frmMain+()+ +|2"));
  const SnapshotHeader header = snapshots.Header(1);
  EXPECT_EQ(header.component, "frmMain");
  EXPECT_EQ(header.itemData, 3);
  EXPECT_EQ(header.listIndex, 2);
  EXPECT_TRUE(header.ofCode);
}

TEST_F(ListSnapshots, TheSameHeaderAgainIsDropped) {
  Take("frmMain", {"a"});
  Take("frmMain", {"b"});
  EXPECT_THAT(Rows(form.lstSave), ElementsAre("frmMain+()+ +|0", "a"));
  Take("frmMain", {"b"}, 1);
  EXPECT_EQ(snapshots.Count(), 2) << "another row was selected";
}

TEST_F(ListSnapshots, TheSameHeaderIsKeptBehindASearch) {
  Take("frmMain", {"a"});
  EXPECT_TRUE(snapshots.Begin({"frmMain", 3, 0, false}, true));
  EXPECT_EQ(snapshots.Count(), 2);
}

TEST_F(ListSnapshots, OfSixTheOldestGoes) {
  for (const char* name : {"one", "two", "three", "four", "five"}) Take(name, {"a", "b"});
  EXPECT_EQ(snapshots.Count(), 5);
  Take("six", {"c"});
  EXPECT_EQ(snapshots.Count(), 5);
  EXPECT_EQ(snapshots.snapPos, 5);
  EXPECT_EQ(snapshots.Header(1).component, "two");
  EXPECT_THAT(Copied(1), ElementsAre("a", "b"));
  EXPECT_EQ(snapshots.Header(5).component, "six");
  EXPECT_THAT(Copied(5), ElementsAre("c"));
  EXPECT_EQ(form.lstSave.ListCount(), 4 * 3 + 2);
}

TEST_F(ListSnapshots, ARowThatLooksLikeAHeaderIsNone) {
  Take("frmMain", {"x = \"+()+ +|1\"", "b"});
  Take("modMain", {"c"});
  EXPECT_THAT(Copied(1), ElementsAre("x = \"+()+ +|1\"", "b"));
  EXPECT_EQ(snapshots.Header(2).component, "modMain");
}

TEST_F(ListSnapshots, ClearedTheyAreNone) {
  Take("frmMain", {"a"});
  snapshots.Clear();
  EXPECT_EQ(snapshots.Count(), 0);
  EXPECT_EQ(snapshots.snapPos, 0);
  EXPECT_EQ(form.lstSave.ListCount(), 0);
}

}  // namespace
}  // namespace corvane::tests
