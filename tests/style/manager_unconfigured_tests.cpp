// The style manager in a host without any "kiv_skin\style" configuration. The tests run in file
// order in one process: the manager is a process-wide singleton.
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using kiv_skin::KivStyleMgr;

namespace {

void ExpectEmptyAnswers(KivStyleMgr* mgr)
{
    EXPECT_EQ(0xFFFFFFFFu, mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_EQ(0u, mgr->GetTransparentColor("KIV_BTN"));
    EXPECT_EQ(nullptr, mgr->GetFont("DEFAULT"));
    EXPECT_EQ(nullptr, mgr->GetBitmap("KIV_FRAME"));
    EXPECT_EQ(nullptr, mgr->GetImageList("KIV_BTN"));
}

}  // namespace

// Runs first: threads that ask at the same moment all get the one manager and one catalogue.
TEST(UnconfiguredManager, ConcurrentFirstCallsCreateOneInstance)
{
    const int kThreads = 8;
    std::vector<KivStyleMgr*> managers(kThreads);
    std::vector<kiv_skin::StyleCatalogue*> catalogues(kThreads);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&, i] {
            managers[i] = KivStyleMgr::GetInstance();
            catalogues[i] = kiv_skin::StyleCatalogue::Instance();
        });
    }
    for (std::thread& t : threads) t.join();
    for (int i = 0; i < kThreads; ++i) {
        EXPECT_EQ(KivStyleMgr::GetInstance(), managers[i]);
        EXPECT_EQ(kiv_skin::StyleCatalogue::Instance(), catalogues[i]);
    }
}

TEST(UnconfiguredManager, AnswersForMissingStyleDataBeforeInit)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(mgr, KivStyleMgr::GetInstance());
    ExpectEmptyAnswers(mgr);
}

TEST(UnconfiguredManager, LoadStyleFindsNothingToLoad)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle(""));
    EXPECT_EQ(0, mgr->LoadStyle("dark"));
}

TEST(UnconfiguredManager, InitFailsThenASecondCallSucceeds)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->InitStyleMgr());
    EXPECT_EQ(1, mgr->InitStyleMgr());  // the style data exists now: the retry answers 1
    EXPECT_EQ(1, mgr->InitStyleMgr());
    ExpectEmptyAnswers(mgr);             // answered from the empty style data
}
