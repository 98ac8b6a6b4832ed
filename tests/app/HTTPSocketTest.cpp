#include "updates/HTTPSocket.h"

#include "LoopbackServer.h"
#include "PrintText.h"
#include "platform/ui/Application.h"

#include <gtest/gtest.h>

#include <climits>

// The wait serves the events of an application.
class HTTPSocketTest : public testing::Test {
    Application application_;
};

TEST_F(HTTPSocketTest, ThePageIsWhatCameUntilTheConnectionEnded) {
    using Then = LoopbackServer::Then;
    const int TimedOut = HTTPSocket::TimedOut;
    const int TooLong = HTTPSocket::TooLong;
    const QByteArray chunk(60 * 1024, 'x');
    const QByteArray zeros(2, '\0');
    const QByteArray manyHeaders = QByteArray("A:\r\n").repeated(10000);
    const LoopbackServer elsewhere({});
    const QString longest(HTTPSocket::MaximumPage, 'x');
    const struct {
        const char* name;
        LoopbackServer server;
        QString page;
        int status, error;
    } cases[] = {
        {"all at once", LoopbackServer({"HTTP/1.0 200 OK\r\nContent-Length: 2\r\n\r\n1.2.0"}), "1.2.0", 200, 0},
        {"headers in two pieces", LoopbackServer({"HTTP/1.0 200 OK\r\nServer: a\r", "\n\r\n1.2"}), "1.2", 200, 0},
        {"line feeds alone", LoopbackServer({"HTTP/1.0 200 OK\nServer: a\n\n1.2.0"}), "1.2.0", 200, 0},
        {"carriage returns alone", LoopbackServer({"HTTP/1.0 200 OK\rServer: a\r\r1.2.0"}), "1.2.0", 200, 0},
        {"mixed line ends", LoopbackServer({"HTTP/1.0 200 OK\r\nServer: a\n\n1.2.0"}), "1.2.0", 200, 0},
        {"error page", LoopbackServer({"HTTP/1.0 404 Not Found\r\n\r\n<p>", "None</p>"}), "<p>None</p>", 404, 0},
        {"redirection",
         LoopbackServer({"HTTP/1.0 301 Moved\r\nLocation: http://" + elsewhere.Site().toUtf8() + "/\r\n\r\nThere"}),
         "There", 301, 0},
        {"chunks", LoopbackServer({"HTTP/1.0 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1\r\n9\r\n"}), "1\r\n9\r\n",
         200, 0},
        {"length below zero", LoopbackServer({"HTTP/1.0 200 OK\r\nContent-Length: -1\r\n\r\n1.2"}), "1.2", 200, 0},
        {"status beyond all", LoopbackServer({"HTTP/1.0 99999999999 OK\r\n\r\n1.2"}), "1.2", INT_MAX, 0},
        {"zeros", LoopbackServer({zeros + "\r\n\r\n" + zeros}), QString(2, QChar::Null), 0, 0},
        {"10,000 headers", LoopbackServer({"HTTP/1.0 200 OK\r\n" + manyHeaders + "\r\n1.2"}), "1.2", 200, 0},
        {"headers letter by letter", LoopbackServer({"HTTP/1.0 200 OK\r\nA: ", "b"}, Then::RepeatLastPiece), "", 0,
         TimedOut},
        {"nothing", LoopbackServer({}), "", 0, 0},
        {"silence", LoopbackServer({}, Then::HoldOpen), "", 0, TimedOut},
        {"end within the headers", LoopbackServer({"HTTP/1.0 200 OK\r\nServ"}), "", 0, TimedOut},
        {"held open", LoopbackServer({"HTTP/1.0 200 OK\r\n\r\n1.2"}, Then::HoldOpen), "1.2", 200, TimedOut},
        {"slow", LoopbackServer({"HTTP/1.0 200 OK\r\n\r\n1", ".", "2"}, Then::Close, 600), "1.2", 200, 0},
        {"endless headers", LoopbackServer({"HTTP/1.0 200 OK\r\n", chunk}, Then::RepeatLastPiece), "", 0, TooLong},
        {"endless page", LoopbackServer({"HTTP/1.0 200 OK\r\n\r\n", chunk}, Then::RepeatLastPiece, 0), longest, 200,
         TooLong},
    };
    for (const auto& row : cases) {
        HTTPSocket socket;
        // Not compared as texts, because a difference would print a page of a megabyte.
        EXPECT_TRUE(socket.Get("http://" + row.server.Site() + "/a/page.txt", 1) == row.page) << row.name;
        EXPECT_EQ(socket.HTTPStatusCode(), row.status) << row.name;
        EXPECT_EQ(socket.ErrorCode(), row.error) << row.name;
        EXPECT_EQ(QString(row.server.Requests().join("|")),
                  "GET /a/page.txt HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: " + row.server.Site() +
                      "\r\n\r\n");
    }
    EXPECT_TRUE(elsewhere.Requests().isEmpty()) << "the redirection was followed";
}

TEST_F(HTTPSocketTest, AConnectionThatCannotBeMadeIsAnErrorAtOnce) {
    const std::pair<QString, SocketFailure> cases[] = {
        {LoopbackServer({}).Site(), SocketFailure::ConnectionRefused},
        {"", SocketFailure::HostNotFound},
        {"127.0.0.1:70000", SocketFailure::Other},
    };
    for (const auto& [site, failure] : cases) {
        HTTPSocket socket;
        EXPECT_EQ(socket.Get(site, 1), "") << site;
        EXPECT_EQ(socket.ErrorCode(), static_cast<int>(failure)) << site;
    }
}

// The server has no address of version 6, which the name may give first.
TEST_F(HTTPSocketTest, AHostIsFoundByItsName) {
    const LoopbackServer server({"HTTP/1.0 200 OK\r\n\r\n1.2"});
    HTTPSocket socket;
    EXPECT_EQ(socket.Get(server.Site().replace("127.0.0.1", "localhost"), 5), "1.2");
}
