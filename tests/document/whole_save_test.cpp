// SPDX-License-Identifier: MIT
// A save that is broken off at any step leaves the old skin or the new one.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

#include "support.h"

namespace ornavo {
namespace {

class WholeSave : public SkinTest {
protected:
    /// "Blue" on the disk, loaded, changed and renamed or not; two pictures are new, one of them replaces.
    void Prepare(const std::string& name) {
        fs::remove_all(folder);
        Put(folder / "Pics/new.png", "new picture");
        Put(folder / "Pics/same.png", "the other picture of that name");
        Put(folder / "Blue/same.png", "same");
        Put(folder / "Blue/old.png", "old");
        objSkin = NewSkin("Blue");
        objSkin->AddNewLayout("One")->dbLayoutElements->Item(1)->PicNormal = "old.png";
        objSkin->SaveSkin(false);
        objSkin = NewSkin("Blue");
        objSkin->LoadSkin();
        Element().PicOn = folder / "Pics/new.png";
        Element().PicOver = folder / "Pics/same.png";
        objSkin->dbSkinPrefs->Add("P", "", (folder / "Pics/new.png").string(), 5);
        objSkin->SkinName = name;
        objSkin->Dirty = true;
    }
    static dbLayoutElement& Element() { return *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item(1); }
    static std::string Model() {
        return objSkin->SkinName + "," + objSkin->OldSkinName + "," + (objSkin->Dirty ? "dirty" : "clean") +
               "," + Element().PicNormal + "," + Element().PicOn + "," + Element().PicOver + "," +
               objSkin->dbSkinPrefs->Item("P")->value.ToText();
    }
    /// Each file of the skin as it was or as it shall be; no others but scratch files.
    void ExpectWhole(const std::map<std::string, std::string>& before,
                     const std::map<std::string, std::string>& after, bool scratchAllowed) {
        const auto now = scratch.Files();
        for (const auto& [name, bytes] : before) EXPECT_TRUE(now.contains(name)) << name;
        for (const auto& [name, bytes] : now) {
            if (scratchAllowed && fs::path(name).extension() == ".tmp") continue;
            const bool asBefore = before.contains(name) && before.at(name) == bytes;
            const bool asAfter = after.contains(name) && after.at(name) == bytes;
            EXPECT_TRUE(asBefore || asAfter) << name;
        }
    }
    /// The settings may be the new ones only when everything that they name is there.
    void ExpectReferencesTrue(const std::string& name) {
        const dbSkinRef read = NewSkin(name);
        read->LoadSkin();
        for (const dbLayoutRef& layout : *read->dbLayouts)
            for (const dbLayoutElementRef& element : *layout->dbLayoutElements)
                for (const std::string& picture : {element->PicNormal, element->PicOn, element->PicOver})
                    EXPECT_TRUE(picture.empty() || fs::exists(fs::path(read->SkinFolder()) / picture) ||
                                fs::exists(picture))
                        << picture;
    }
};

TEST_F(WholeSave, AFailureAtEachStep) {
    for (const std::string name : {"Blue", "Red"}) {
        Prepare(name);
        const auto before = scratch.Files();
        const std::string modelBefore = Model();
        int steps = 0;
        {
            StepLayer counting;
            objSkin->SaveSkin(false);
            steps = counting.steps;
        }
        const auto after = scratch.Files();
        EXPECT_EQ(Model(), name + "," + name + ",clean,old.png,new.png,same.png,new.png");
        ASSERT_GT(steps, 15);
        int refused = 0;
        for (int bad = 1; bad <= steps; ++bad) {
            Prepare(name);
            const std::string settings = name + "/SkinSettings.xml";
            bool failed = false;
            try {
                // A full disk stays full, other failures pass.
                const FullDisk disk(bad, bad % 2 == 0 ? std::numeric_limits<int>::max() : bad);
                objSkin->SaveSkin(false);
            } catch (const Failure& failure) {
                failed = true;
                EXPECT_NE(failure.description().find(name), std::string::npos) << failure.description();
            }
            SCOPED_TRACE(name + ", step " + std::to_string(bad));
            const auto now = scratch.Files();
            if (failed) {
                ++refused;
                EXPECT_EQ(Model(), modelBefore);
                ASSERT_EQ(now.contains(settings), before.contains(settings));
                EXPECT_TRUE(!now.contains(settings) || now.at(settings) == before.at(settings));
                ExpectWhole(before, after, true);
            } else {
                EXPECT_FALSE(objSkin->Dirty);
                EXPECT_EQ(objSkin->OldSkinName, name);
            }
            ExpectReferencesTrue("Blue");
            ExpectReferencesTrue(name);
        }
        EXPECT_GT(refused, 3);
    }
}

TEST_F(WholeSave, KilledAtEachStep) {
    Prepare("Blue");
    const auto before = scratch.Files();
    int steps = 0;
    {
        StepLayer counting;
        objSkin->SaveSkin(false);
        steps = counting.steps;
    }
    const auto after = scratch.Files();
    for (int last = 1; last <= steps + 1; ++last) {
        Prepare("Blue");
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const StepLayer layer([last](int step) {
                if (step == last) raise(SIGKILL);
            });
            objSkin->SaveSkin(false);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(WIFSIGNALED(status), last <= steps) << last;
        SCOPED_TRACE("killed at step " + std::to_string(last));
        ExpectWhole(before, after, true);
        ExpectReferencesTrue("Blue");
    }
    EXPECT_EQ(scratch.Files().at("Blue/SkinSettings.xml"), after.at("Blue/SkinSettings.xml"));
}

TEST_F(WholeSave, TheNextSaveClearsAway) {
    const auto left = [&] {
        std::size_t count = 0;
        for (const auto& [name, bytes] : scratch.Files("Blue")) count += name.ends_with(".tmp");
        return count;
    };
    for (const int last : {SIGKILL, SIGSTOP}) {
        Prepare("Blue");
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const StepLayer layer([last](int step) {
                if (step == 5) raise(last);
            });
            objSkin->SaveSkin(false);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, WUNTRACED), child);
        EXPECT_EQ(left(), 1u);
        const fs::path old = folder / "Blue/.ornavo-1234567.tmp";
        Put(old, "of nobody known");
        fs::last_write_time(old, fs::file_time_type::clock::now() - std::chrono::hours(25));
        objSkin->SaveSkin(false);
        EXPECT_EQ(left(), last == SIGSTOP ? 1u : 0u) << "a running one's stays";
        if (last == SIGKILL) continue;
        kill(child, SIGCONT);
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0 && left() == 0);
    }
}

/// The system itself refuses to write beyond a size; unlike a right, this stops every user.
TEST_F(WholeSave, TheSystemTakesNoMore) {
    Prepare("Blue");
    const auto before = scratch.Files();
    for (const rlim_t room : {rlim_t{0}, rlim_t{100}, rlim_t{1000}}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{room, room};
            const bool limited = setrlimit(RLIMIT_FSIZE, &limit) == 0;
            const std::string model = Model();
            const bool saved = Attempt([] { objSkin->SaveSkin(false); });
            _exit(limited && !saved && Model() == model ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << room;
        const auto now = scratch.Files();
        EXPECT_EQ(now.at("Blue/SkinSettings.xml"), before.at("Blue/SkinSettings.xml"));
        EXPECT_TRUE(room > 0 || now == before);
    }
}

TEST_F(WholeSave, NoFolderCanBeMade) {
    Put(folder / "file", "");
    objSkin->SetBasePath((folder / "file").string());
    try {
        objSkin->SaveSkin(false);
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_NE(failure.description().find((folder / "file/Blue").string()), std::string::npos);
    }
}

}  // namespace
}  // namespace ornavo
