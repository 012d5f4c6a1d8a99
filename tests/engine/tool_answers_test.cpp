#include "engine/tool_answers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace klarvik::tool_answers {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ToolAnswers, ReadAFolderOnALineOfItsOwn) {
  EXPECT_EQ(folder("/home/ann/go/pkg/mod\n"), "/home/ann/go/pkg/mod");
  EXPECT_EQ(folder("/home/ann/with space"), "/home/ann/with space");
  EXPECT_EQ(folder("/home/ann/./x/../go\n"), "/home/ann/go");
  for (const char* no : {"", "\n", "go/pkg/mod\n", "~/go\n", "/\n", "/..\n", "/a\n/b\n", "/a\n\n",
                         "error: no such key\n", "warning\n/a\n", "/a\tb\n", "/a\r\n"}) {
    EXPECT_EQ(folder(no), std::nullopt) << no;
  }
  EXPECT_EQ(folder(std::string("/a\0b\n", 5)), std::nullopt);
}

TEST(ToolAnswers, ReadWhereCondaKeepsItsPackages) {
  EXPECT_THAT(condaFolders(R"({"conda_version":"23.1","pkgs_dirs":["/home/ann/miniconda3/pkgs",
                               "/home/ann/.conda/pkgs"],"channels":[]})"),
              ElementsAre("/home/ann/miniconda3/pkgs", "/home/ann/.conda/pkgs"));
  for (const char* no : {"", "[]", "{}", "null", R"({"pkgs_dirs":"/a"})", R"({"pkgs_dirs":[1]})",
                         R"({"pkgs_dirs":["/a","b"]})", R"({"pkgs_dirs":["/a"])"}) {
    EXPECT_THAT(condaFolders(no), IsEmpty()) << no;
  }
}

// As Docker 28 prints it.
constexpr std::string_view dockerTable =
    R"json({"Active":"1","Reclaimable":"1.5GB (75%)","Size":"2GB","TotalCount":"7","Type":"Images"}
{"Active":"0","Reclaimable":"0B (0%)","Size":"0B","TotalCount":"0","Type":"Containers"}
{"Active":"0","Reclaimable":"812.3MB","Size":"900MB","TotalCount":"31","Type":"Build Cache"}
)json";

TEST(ToolAnswers, ReadWhatDockerTakes) {
  const auto images = dockerUse(dockerTable, "Images");
  ASSERT_TRUE(images);
  EXPECT_EQ(images->size, 2'000'000'000);
  EXPECT_EQ(images->reclaimable, 1'500'000'000);
  EXPECT_EQ(dockerUse(dockerTable, "Build Cache")->reclaimable, 812'300'000);
  EXPECT_FALSE(dockerUse(dockerTable, "Local Volumes"));
  EXPECT_FALSE(dockerUse("TYPE  TOTAL\nImages 7\n", "Images"));
  EXPECT_FALSE(dockerUse("[]", "Images"));
  EXPECT_EQ(dockerUse(R"({"Type":"Images","Size":"-5GB","Reclaimable":12})", "Images")->size, 0);
  EXPECT_EQ(dockerUse(R"({"Type":"Images"})", "Images")->reclaimable, 0);
}

TEST(ToolAnswers, TakeNoServiceOfAnotherMachine) {
  EXPECT_TRUE(isLocalDocker("unix:///var/run/docker.sock\n"));
  EXPECT_TRUE(isLocalDocker("unix:///run/user/1000/docker.sock\n"));
  for (const char* no : {"", "tcp://1.2.3.4:2375\n", "ssh://build\n", "unix://\n", "<no value>\n",
                         "unix:///a\nunix:///b\n"}) {
    EXPECT_FALSE(isLocalDocker(no)) << no;
  }
}

TEST(ToolAnswers, SumUpImages) {
  EXPECT_EQ(dockerImages(R"({"ID":"a","Size":"72.8MB"}
{"ID":"b","Size":"1.2MB"}
)"),
            74'000'000);
  EXPECT_EQ(dockerImages(""), std::nullopt);
  EXPECT_EQ(dockerImages("REPOSITORY TAG\n"), std::nullopt);

  // As Podman 4.3 prints it, shortened.
  EXPECT_EQ(podmanImages(R"([{"Id":"a","RepoTags":null,"Size":2008135,"SharedSize":8135,
                             "Containers":0,"Dangling":true},
                             {"Id":"b","Size":500,"SharedSize":0,"Containers":1}])"),
            2'000'000);
  EXPECT_EQ(podmanImages("[]\n"), 0);
  EXPECT_EQ(
      podmanImages(R"([{"Size":-4},{"Size":"9"},{"Size":1e300},7,{"Size":5,"SharedSize":9}])"), 0);
  EXPECT_EQ(podmanImages(R"([{"Size":18446744073709551615},{"Size":3}])"), 3);
  for (const char* no : {"", "json\n", "{}", "[", "Error: cannot connect"}) {
    EXPECT_EQ(podmanImages(no), std::nullopt) << no;
  }
}

TEST(ToolAnswers, ReadTheRuntimesOfFlatpak) {
  // A space that does not break is a question mark in plain English.
  EXPECT_THAT(flatpakRuntimes("org.gnome.Platform/x86_64/45\t1.2?GB\tsystem\n"
                              "org.test.Rt/x86_64/1\t5.0\xc2\xa0MB\tuser\n"
                              "org.small/x86_64/1\t512 bytes\tuser\n"),
              ElementsAre(FlatpakRuntime{"org.gnome.Platform", "45", 1'200'000'000},
                          FlatpakRuntime{"org.test.Rt", "1", 5'000'000},
                          FlatpakRuntime{"org.small", "1", 512}));
  for (const char* no :
       {"", "\n", "Ref\tSize\tInstallation\n", "a/b\t1 MB\tuser\n", "a/b/c 1 MB user\n"}) {
    EXPECT_THAT(flatpakRuntimes(no), IsEmpty()) << no;
  }
}

TEST(ToolAnswers, ReadWhatFlatpakWouldRemove) {
  EXPECT_THAT(
      flatpakUnused("\nThese runtimes in installation 'user' are pinned and won't be removed; "
                    "see flatpak-pin(1):\n  runtime/org.kept/x86_64/1\n"
                    "\n\n 1.\t   \torg.test.Rt\t1\tr\n 2.\t   \torg.kde.Platform\t5.15-22.08\tr\n"
                    "\nProceed with these changes to the user installation? [Y/n]: n\n"),
      ElementsAre(FlatpakRuntime{"org.test.Rt", "1"},
                  FlatpakRuntime{"org.kde.Platform", "5.15-22.08"}));
  for (const char* no :
       {"Nothing unused to uninstall\n", " 1.\t   \torg.test.Rt\t1\tu\n",
        " x.\t   \torg.test.Rt\t1\tr\n", " 1.\t   \t--all\t1\tr\n", " 1.   org.test.Rt  1  r\n"}) {
    EXPECT_THAT(flatpakUnused(no), IsEmpty()) << no;
  }
}

TEST(ToolAnswers, ReadTheSnapsThatAreKeptUnused) {
  const std::string table =
      "Name      Version        Rev    Tracking         Publisher    Notes\n"
      "core20    20230801       2015   latest/stable    canonical\xe2\x9c\x93   base\n"
      "core20    20230622       1974   latest/stable    canonical\xe2\x9c\x93   base,disabled\n"
      "hello_x   2.10           x1     -                -            disabled,classic\n"
      "firefox   118.0          3206   latest/stable    mozilla\xe2\x9c\x93     -\n";
  EXPECT_THAT(disabledSnaps(table),
              ElementsAre(SnapRevision{"core20", "1974"}, SnapRevision{"hello_x", "x1"}));
  const std::string title = table.substr(0, table.find('\n') + 1);
  for (const std::string& no : std::vector<std::string>{
           std::string(), std::string("error: cannot list snaps\n"), title,
           "Name Version Revision Verfolgung Herausgeber Hinweise\ncore20 1 2 3 4 disabled\n",
           title + "--all 1 2 3 4 disabled\n", title + "core20 1 --purge 3 4 disabled\n",
           title + "a/../b 1 2 3 4 disabled\n", title + "core20 1 2 3 4 notdisabled\n",
           title + "core20 1 2 3 disabled\n"}) {
    EXPECT_THAT(disabledSnaps(no), IsEmpty()) << no;
  }
}

}  // namespace
}  // namespace klarvik::tool_answers
