// Many files on several threads say what they say on one.

#include "running/FileRun.h"
#include "running/OrderedQueue.h"
#include "running/Progress.h"
#include "running/Relay.h"
#include "running/Stop.h"
#include "tools/RunCommand.h"
#include "xml/Encoding.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace Command {
namespace {

using namespace std::chrono_literals;

TEST(OrderedQueue, GivesWhatLanesHoldInTheirOrder) {
    OrderedQueue<int> queue(3, 1000);
    queue.put(1, 10, 1, false);
    queue.put(2, 20, 1, true);
    EXPECT_TRUE(queue.take(0ms).empty()) << "it is not their turn";
    queue.put(0, 1, 1, false);
    EXPECT_EQ(queue.take(0ms), std::vector({1}));
    queue.put(0, 2, 1, true);
    EXPECT_EQ(queue.take(0ms), std::vector({2, 10}));
    queue.put(1, 11, 1, true);
    EXPECT_EQ(queue.take(0ms), std::vector({11, 20}));
}

// To the reader it is worth waking for much, or for the end.
TEST(OrderedQueue, WakesTheReaderOnlyForWhatIsWorthIt) {
    OrderedQueue<int> queue(3, 1000);
    auto const take = [&] {
        auto const start = std::chrono::steady_clock::now();
        std::size_t const count = queue.take(200ms).size();
        return std::pair(count, std::chrono::steady_clock::now() - start >= 200ms);
    };
    queue.put(0, 0, 1, true);
    EXPECT_EQ(take(), std::pair(std::size_t{1}, true)) << "little";
    queue.put(1, 1, 4, false);
    EXPECT_EQ(take(), std::pair(std::size_t{1}, false)) << "much";
    queue.put(2, 2, 4, true);
    EXPECT_EQ(take(), std::pair(std::size_t{0}, true)) << "of a lane whose turn it is not";
    queue.put(1, 3, 1, true);
    EXPECT_EQ(take(), std::pair(std::size_t{2}, false)) << "the end";
}

TEST(OrderedQueue, LetsThoseWaitThatAreFarAhead) {
    OrderedQueue<int> queue(2, 2);
    std::atomic<int> put = 0;
    std::jthread const ahead([&] {
        for (int i = 0; i < 4; ++i, ++put) queue.put(1, i, 1, i == 3);
    });
    // The first lane is not held up by the other, which waits with two items in the queue.
    for (int i = 0; i < 10; ++i) {
        queue.put(0, i, 1, false);
        EXPECT_EQ(queue.take(1s).size(), 1u);
        EXPECT_LE(put, 2);
    }
    queue.put(0, 10, 1, true);
    std::size_t taken = 0;
    while (taken < 5) taken += queue.take(1s).size();
    EXPECT_EQ(taken, 5u);
}

TEST(OrderedQueue, LetsNobodyWaitOnceItIsLifted) {
    OrderedQueue<int> queue(2, 1);
    std::jthread const ahead([&] {
        for (int i = 0; i < 100; ++i) queue.put(1, i, 1, false);
    });
    queue.lift();
}

TEST(Progress, TellsTheTimeLeft) {
    struct Row {
        std::uint64_t bytes, allBytes;
        double seconds;
        char const* line;
    };
    for (Row const& row :
         {Row{0, 0, 0, "[3/20] 0.0 MB, 0.0 MB/s"}, Row{0, 9'000'000, 1, "[3/20] 0.0 of 9.0 MB, 0.0 MB/s"},
          Row{2'000'000, 9'000'000, 2, "[3/20] 2.0 of 9.0 MB, 1.0 MB/s, 8 s left"},
          Row{1'000'000, 91'000'000, 1, "[3/20] 1.0 of 91.0 MB, 1.0 MB/s, 1 min 31 s left"},
          Row{9'000'000, 1'000'000, 9, "[3/20] 9.0 of 1.0 MB, 1.0 MB/s"}})
        EXPECT_EQ(progressLine(3, 20, row.bytes, row.allBytes, std::chrono::duration<double>(row.seconds)), row.line);
}

// Remembers how it ended, and interrupts the run after the first file.
struct Interrupting : RunListener {
    explicit Interrupting(int signal) : signal(signal) {}
    void finding(std::size_t, Finding const&) override {}
    void ended(std::size_t file, FileEnd const& end) override {
        if (file == 0) {
            isSecondOpen.wait(false);
            std::raise(signal);
        }
        counts += end.counts;
    }
    std::uint64_t wanted() const override { return UINT64_MAX; }
    void passed(std::uint64_t) override {}

    int signal;
    Counts counts;
    std::atomic<bool> isSecondOpen = false;
};

TEST(FileRun, EndsInTheMiddleOfAFileWhenItIsStopped) {
    std::string const sound = write("sound.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='1'/>");
    std::string const endless = scratch + "/endless.svg";
    ASSERT_EQ(mkfifo(endless.c_str(), 0600), 0);
    auto const oldHandler = std::signal(SIGPIPE, SIG_IGN);
    for (int const signal : {SIGINT, SIGTERM, SIGHUP}) {
        std::signal(signal, SIG_DFL); // ignored where a shell runs the tests in the background
        Interrupting listener(signal);
        std::thread author([&] {
            std::FILE* const file = std::fopen(endless.c_str(), "w"); // returns when the other end is open
            listener.isSecondOpen = true;
            listener.isSecondOpen.notify_one();
            std::fputs("<svg xmlns='http://www.w3.org/2000/svg'>", file);
            while (std::fputs("<g/>", file) >= 0) {
            }
            std::fclose(file);
        });
        std::vector<FileJob> const jobs = {{sound, {}}, {endless, {}}, {sound, {}}, {sound, {}}};
        {
            Stop const stop;
            EXPECT_EQ(runFiles(jobs, 2, listener), 1u);
        }
        EXPECT_EQ(listener.counts.files, 2u);
        EXPECT_EQ(listener.counts.failedFiles, 1u) << "the one that was not read to its end";
        EXPECT_EQ(listener.counts.attributes, 1u);
        author.join();
    }
    std::signal(SIGPIPE, oldHandler);
}

TEST(Check, SaysTheSameOnSeveralThreads) {
    std::mt19937 random(7);
    char const* const parts[] = {"<path d='M1 1l.5.5'/>", "<rect width='broad'/>",    "<g font-size='12 q'/>",
                                 "<circle r='3'/>",       "<text style='fill:blu'/>", "<g id='a'/>"};
    for (int i = 0; i < 500; ++i) {
        std::string document = "<svg xmlns='http://www.w3.org/2000/svg'>";
        for (std::size_t n = random() % (i % 100 == 0 ? 500 : 8); n > 0; --n)
            document += parts[random() % std::size(parts)];
        write("many/" + std::to_string(i) + ".svg", random() % 50 == 0 ? document : document + "</svg>");
    }
    for (std::string const options : {"", "--strict --format json", "--max-findings 1234", "--group --ignore misread",
                                      "--only element:rect,duplicate-id --max-findings 99"}) {
        Result const one = run("check -j 1 " + options + " " + scratch + "/many");
        Result const four = run("check -j 4 " + options + " " + scratch + "/many");
        EXPECT_FALSE(one.output.empty()) << options;
        EXPECT_TRUE(one.output == four.output) << options;
        EXPECT_EQ(one.errors, four.errors) << options;
        EXPECT_EQ(one.code, four.code) << options;
    }
    run("check -j 4 " + scratch + "/many 2>" + scratch + "/unread | head -n 1 >/dev/null");
    EXPECT_EQ(contentOf(scratch + "/unread"), "") << "nobody reads any more";
}

// What a second thread is told of, and what the handler has to hear at once, mixed and longer than a few batches.
TEST(Check, SaysTheSameOfALargeFileReadOnAThreadOfItsOwn) {
    std::string const parts[] = {"<g transform='translate(-1-1)' id='a' q:x='1' xml:lang='de'>\r\n</g>",
                                 "<path d='M1 1l.5.5 &#65;&known;&other;'/>",
                                 "<use xlink:href='#nobody'/><text style='stroke-width:1,5px'>é</text>",
                                 "&element;&missing;",
                                 "<x:if xmlns:x='http://www.w3.org/1999/XSL/Transform' test='1'><rect width='{$w}' "
                                 "x='q'><x:attribute name='height'>1 2</x:attribute></rect></x:if>",
                                 "<polyline points='" + std::string(300'000, '1') + " 2 q'/>",
                                 "<g " + std::string(30'000, 'n') + "=''/>",
                                 "<svg xmlns='http://www.w3.org/2000/svg' widht='1'><circle id='a' r='-1'/></svg>"};
    std::mt19937 random(3);
    for (std::string const subset : {"", "%other;"}) {
        std::string document = "<!DOCTYPE svg [<!ENTITY % other SYSTEM 'none'><!ENTITY known 'z'>"
                               "<!ENTITY missing SYSTEM 'q'><!ENTITY other 'y'><!ENTITY element '<g clas=\"1\"/>'>" +
                               subset +
                               "]>\n<svg xmlns='http://www.w3.org/2000/svg' xmlns:q='q' "
                               "xmlns:xlink='http://www.w3.org/1999/xlink'>";
        while (document.size() < 2 << 20) {
            std::size_t const rare = random() % 2000;
            document += parts[rare < std::size(parts) ? rare : random() % 3] + "\n";
        }
        for (ByteEncoding const encoding : {ByteEncoding::Utf8, ByteEncoding::Utf16Little}) {
            bool const isUtf8 = encoding == ByteEncoding::Utf8;
            std::string const text = isUtf8 ? document + "</svg>" : "\uFEFF" + document + "</q>";
            std::string const file = write("large.svg", encode(decode(text, ByteEncoding::Utf8), encoding));
            Result const one = run("check --format html --show not-covered -j 1 " + file);
            Result const two = run("check --format html --show not-covered -j 2 " + file);
            EXPECT_GT(one.output.size(), 1u << 20) << one.errors;
            EXPECT_TRUE(one.output == two.output);
            EXPECT_EQ(one.errors, two.errors);
            EXPECT_EQ(one.code, two.code);
        }
    }
}

TEST(Relay, ThrowsWhatTheHandlerThrew) {
    struct Failing : XmlHandler {
        int told = 0;
        void startElement(XmlElement const&, Tag&) override {
            if (++told == 3) throw std::runtime_error("enough");
        }
    };
    std::string document = "<a>";
    while (document.size() < 9 << 20) document += "<b/>";
    Failing handler;
    Relay relay(handler);
    relay.start();
    MemorySource source(document);
    EXPECT_THROW(readXml(source, relay), std::runtime_error);
    EXPECT_EQ(handler.told, 3);
}

} // namespace
} // namespace Command
