#include "check/inputFileCheck.hpp"

#include "check/keyTable.hpp"
#include "support/findings.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>

#include <filesystem>

using namespace sorvik;

namespace {

/// A sound input of both tasks, without the lines that `without` names, then `more`.
std::string inputWith(const std::string& more, const std::string& without = "") {
    const std::string folder = SORVIK_TEST_DATA "/../../examples/1-hull";
    const char* const lines[][2] = {{"bem.output", "project"},
                                    {"bem.body", "1"},
                                    {"hydroBody1.bemInput.meshName", "{}/barge.stl"},
                                    {"hydroBody1.bemInput.position", "[0, 0, -0.5]"},
                                    {"environment.ground.level", "-20 % m"},
                                    {"environment.wave.type", "JONSWAP"},
                                    {"environment.wave.fp", "0.1"},
                                    {"environment.wave.f1", "0.5"},
                                    {"environment.wave.seed", "1"},
                                    {"line1.length", "100"},
                                    {"line2.source", "line1"}};
    std::string text = "% a case\n";
    for (const auto& [key, value] : lines) {
        std::string shown = value;
        if (shown[0] == '{') {
            shown.replace(0, 2, folder);
        }
        text += without.find(key) == without.npos ? key + (" = " + shown) + '\n' : "";
    }
    return text + more;
}

struct faultyInput {
    const char* expected; ///< names of findings with blanks between them
    std::string more;
    const char* without = "";
    const char* message = ""; ///< what the first finding names
};

const faultyInput faultyInputs[] = {
    {"", ""},
    {"unknown-key", "environment.waterDepth = 5", "", "environment.wave.depth"},
    {"unknown-key", "environment.wave = { hs = 2\n}", "", "environment.wave.Hs"},
    {"unknown-key", "environment.wave.gama = 2", "", "environment.wave.gamma"},
    {"", "environment.wave.zz = 1\nhydroBody1.position = 0\nline1.depth = 3\nhydroBody2.bemInput."
         "meshName = a"},
    {"", "wave.Hs = 2\nenvironment.wave.source = wave"}, // an alias reads it
    {"repeated-key", "environment.wave.fp = 0.2", "", "line 8"},
    {"repeated-key", "a = { b = 1\n}\na = { b = 2\n}", "", "a.b is given in line 13"},
    {"repeated-key", "a = 1\na = { b = 2 }", "", "dropped"},
    {"repeated-key", "a = { b = 1 }\na = { c = 2 }", "", "merged"},
    {"not-a-number", "environment.wave.gamma = high", "", "gamma is high"},
    {"not-a-number", "hydroBody1.bemInput.cogInMesh = [0 x 1]", "", "x 1 is read as 0"},
    {"rest-ignored", "environment.wave.gamma = 2.5e", "", "read as 0"},
    {"rest-ignored", "environment.wave.gamma = 1d2", "", "read as 1"},
    {"rest-ignored", "environment.wave.rampTime = 5 s", "", "read as 5"},
    {"truncated-integer", "bem.nFreqs = 1e3", "", "read as 1."},
    {"truncated-integer", "bem.nFreqs = 3.7", "", "read as 3."},
    {"", "bem.nFreqs = 3.0"},
    {"decimal-comma", "environment.wave.Hs = 2,5", "", "2 is read"},
    {"out-of-range", "environment.gravity = 9.81", "", "below 0"},
    {"out-of-range", "bem.w0 = 0", "", "above 0"},
    {"out-of-range", "bem.w1 = 0.001", "", "below bem.w0"},
    {"out-of-range", "bem.nFreqs = 0", "", "at least 1"},
    {"out-of-range", "hydroBody1.bemInput.cogInMesh = [0 1]", "", "3 numbers"},
    {"out-of-range", "environment.wave.gamma = 1e999", "", "beyond"},
    {"out-of-range", "environment.ground.level = 3", "environment.ground.level", "is -3 m"},
    {"out-of-range", "environment.ground.level = -1", "environment.ground.level", "only 1 m deep"},
    {"out-of-range", "simulation.time.end = -5", "", "empty"},
    {"out-of-range", "simulation.print.dt = 2", "", "0.25 Hz only"},
    {"out-of-range", "environment.wave.type = jonswap", "environment.wave.type", "JONSWAP, custom"},
    {"out-of-range", "environment.wave.f0 = 0.3", "", "outside the frequencies"},
    {"missing-key", "", "bem.output", "bem.output"},
    {"missing-key", "", "hydroBody1.bemInput.meshName", "hydroBody1.bemInput.meshName"},
    {"missing-key", "", "environment.wave.type", "stays still"},
    {"unread-key", "environment.wave.depth = 30", "", "gives a depth of 20 m"},
    {"unread-key", "environment.wave.period = 8", "", "the waves are JONSWAP"},
    {"unread-key", "environment.wave.Hs = 2\nenvironment.wave.alpha = 0.01", "", "alpha"},
    {"missing-file", "hydroBody1.bemInput.meshName = none.stl", "hydroBody1.bemInput.meshName",
     "none.stl"},
    {"missing-file", "bem.output = none/project", "bem.output", "no folder none"},
    {"bad-file-name missing-file", "hydroBody1.bemInput.meshName = a b.stl",
     "hydroBody1.bemInput.meshName", "\"a b_wetted.dat\""},
    {"unclosed-bracket", "a = { b = 1", "", "in line 13 is not closed by a }"},
    {"unclosed-bracket", "a = { b = <5\n}", "", "The < in line 13"},
    {"hidden-block", "title = \"a = b\"", "", "quotes"},
    {"several-entries", "a = 1; b = 2", "", "several"},
    {"ignored-text", "% Hs 2\n// Hs 3\nHs 4\n", "", "neither"},
    {"wrong-dialect", "\"Hs\" : 4\n", "", "JSON"},
    {"idle-alias", "line3.source = lone", "", "line3.source = lone"},
    {"", "pump.resource = oil"},
    {"far-alias", "body1.a = 1\nbody10.a = 1\nbody2.source = body1", "", "body10.a"},
    {"far-alias", "power.resource = line1", "", "is an alias too"},
    {"endless-alias", "wave2.source = wave", "", "feeds on itself"},
    {"large-table", "simulation.time.end = 5e6", "", "1e+08 rows"},
};

TEST(checkInput, findsEachFaultAndNothingElse) {
    for (const faultyInput& each : faultyInputs) {
        SCOPED_TRACE(each.more + " without " + each.without);
        const report result = checkInputText("case.m", inputWith(each.more, each.without), {});
        std::string found;
        for (const std::string& name : namesOf(result)) {
            found += (found.empty() ? "" : " ") + name;
        }
        EXPECT_EQ(found, each.expected);
        if (!result.findings.empty()) {
            EXPECT_THAT(result.findings.front().message, testing::HasSubstr(each.message));
        }
    }
}

TEST(checkInput, namesTheLineOfAKeyInBlocks) {
    const report result = checkInputText("case.m",
                                         "a = [1\n2]\nenvironment = {\n  wave = {\n"
                                         "    type = regular\n    period = 0\n} }\n",
                                         {});
    ASSERT_NE(result.find("out-of-range"), nullptr);
    EXPECT_EQ(result.find("out-of-range")->where[0].line, 6);
}

TEST(checkInput, knowsEncodingAndDialect) {
    const auto check = [](const char* file, const std::string& text) {
        return namesOf(checkInputText(file, text, {}));
    };
    using testing::ElementsAre;
    EXPECT_THAT(check("a.m", "\xEF\xBB\xBF"
                             "a = 1\n"),
                ElementsAre("byte-order-mark"));
    EXPECT_THAT(check("a.m", std::string("a\0=\0001\0\n\0", 8)), ElementsAre("utf-16"));
    EXPECT_THAT(check("a.json", "{\"a\": 1, \"b\": 2}"), ElementsAre("compact-json"));
    EXPECT_THAT(check("a.json", "a = 1\n"), ElementsAre("wrong-dialect"));
    EXPECT_THAT(check("a.json", "{\n\t\"a\" : {\n\t\t\"b\" : [1 , 2]\n\t}\n}\n"), ElementsAre());
}

TEST(checkInput, demandsTheKeysOfTheTaskAlone) {
    const auto check = [](inputTask task, const std::string& text) {
        inputOptions options;
        options.task = task;
        return namesOf(checkInputText("case.m", text, options));
    };
    using testing::ElementsAre;
    EXPECT_THAT(check(inputTask::both, "a = 1"), ElementsAre());
    EXPECT_THAT(check(inputTask::wave, "a = 1"), ElementsAre("missing-key"));
    EXPECT_THAT(check(inputTask::nemoh, "a = 1"), ElementsAre("missing-key", "missing-key"));
    EXPECT_THAT(check(inputTask::wave, inputWith("bem.w0 = 0", "bem.output")), ElementsAre());
    EXPECT_THAT(check(inputTask::both, "environment.wave.type = regular"),
                ElementsAre("missing-key", "missing-key"));
    EXPECT_THAT(check(inputTask::both, "environment.wave = {\ntype = custom\namplitude = [1 2]\n"
                                       "frequency = 1\nphase = [0 0]\n}"),
                ElementsAre("out-of-range"));
}

TEST(checkInput, findsFilesThatEarlierRunsLeft) {
    const temporaryFolder folder;
    writeFile(folder.path("time.dat"), "0\n");
    inputOptions options;
    options.outputFolder = folder.path();
    EXPECT_THAT(namesOf(checkInputText("case.m", inputWith(""), options)),
                testing::ElementsAre("stale-time-file"));
}

TEST(checkInput, hasNothingAgainstTheExamples) {
    const std::filesystem::path former = std::filesystem::current_path();
    int count = 0;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(SORVIK_TEST_DATA "/../../examples")) {
        if (entry.path().extension() == ".m") {
            SCOPED_TRACE(entry.path());
            std::filesystem::current_path(entry.path().parent_path());
            EXPECT_THAT(namesOf(checkInput(entry.path().filename().string(), {})),
                        testing::ElementsAre());
            ++count;
        }
    }
    std::filesystem::current_path(former);
    EXPECT_GE(count, 5);
}

TEST(keyTable, isTheTableOfTheManual) {
    const std::string manual = readFile(SORVIK_TEST_DATA "/../../docs/manual.md");
    std::string table;
    std::string_view former;
    for (const inputKey& key : keyTable()) {
        table += manualRow(key, former) + '\n';
        former = key.name;
    }
    EXPECT_NE(manual.find(table + '\n'), manual.npos) << "The table should be\n" << table;
}

} // namespace
