"""The vendor's web site with its version file, served until the journey ends."""

import socket
import threading


class VersionSite:
    """Keeps what it is sent."""

    def __init__(self, version):
        self.requests = []
        self.server = socket.create_server(("127.0.0.1", 0))
        self.name = f"127.0.0.1:{self.server.getsockname()[1]}"
        threading.Thread(target=self.Serve, args=[version], daemon=True).start()

    def Serve(self, version):
        while True:
            client = self.server.accept()[0]
            self.requests.append(client.recv(65536).decode())
            client.sendall(f"HTTP/1.0 200 OK\r\n\r\n{version}".encode())
            client.close()
