"""The vendor's web site with its version file."""

import http.server
import threading


class VersionFile(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.send_response(200 if self.path == "/pourbook/pb1_latestversion.txt" else 404)
        self.end_headers()
        self.wfile.write(b"9.9.9\n")


def Start():
    """Serves until the journey ends, at the place that this gives."""
    server = http.server.HTTPServer(("127.0.0.1", 0), VersionFile)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return f"127.0.0.1:{server.server_port}"
