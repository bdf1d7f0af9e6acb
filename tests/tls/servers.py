"""servers.py FOLDER: TLS servers on free ports of this machine, good ones and others.

Writes the ports to FOLDER/ports, a line a server, and what the mail server hears to FOLDER/heard.
Runs until it is ended.
"""
import pathlib
import socket
import ssl
import subprocess
import sys
import threading
import time
import warnings

folder = pathlib.Path(sys.argv[1])
warnings.simplefilter("ignore", DeprecationWarning)


def openssl(*arguments):
    subprocess.run(["openssl", *arguments], cwd=folder, check=True, capture_output=True)


def make_certificates():
    key = ["-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes"]
    openssl("req", "-x509", *key, "-keyout", "ca.key", "-out", "ca.pem", "-subj", "/CN=Test authority",
            "-days", "30", "-addext", "basicConstraints=critical,CA:TRUE", "-addext", "keyUsage=keyCertSign")
    openssl("req", "-x509", *key, "-keyout", "self.key", "-out", "self.pem", "-subj", "/CN=localhost",
            "-days", "30", "-addext", "subjectAltName=DNS:localhost,IP:127.0.0.1")
    for name, names, days in [("good", "DNS:localhost,IP:127.0.0.1", "30"), ("other", "DNS:elsewhere.test", "30"),
                              ("expired", "DNS:localhost,IP:127.0.0.1", "0")]:
        openssl("req", *key, "-keyout", f"{name}.key", "-out", f"{name}.csr", "-subj", f"/CN={name}")
        (folder / f"{name}.ext").write_text(f"subjectAltName={names}\nextendedKeyUsage=serverAuth\n")
        openssl("x509", "-req", "-in", f"{name}.csr", "-CA", "ca.pem", "-CAkey", "ca.key", "-CAcreateserial",
                "-out", f"{name}.crt", "-extfile", f"{name}.ext", "-days", days)
        chain = (folder / f"{name}.crt").read_bytes() + (folder / "ca.pem").read_bytes()
        (folder / f"{name}.pem").write_bytes(chain)


def context(name, oldest=False):
    made = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    made.load_cert_chain(folder / f"{name}.pem", folder / f"{name}.key")
    if oldest:
        made.set_ciphers("ALL:@SECLEVEL=0")
        made.minimum_version = ssl.TLSVersion.TLSv1
        made.maximum_version = ssl.TLSVersion.TLSv1_1
    return made


def echo(peer):
    peer.sendall(b"hello\r\n")
    while data := peer.recv(65536):
        peer.sendall(data)


def with_tls(name, script=echo, oldest=False):
    secure = context(name, oldest)

    def serve(peer):
        with secure.wrap_socket(peer, server_side=True) as secured:
            script(secured)
    return serve


def cut(peer):
    peer.sendall(b"half a mail")
    # Without the farewell that TLS demands.
    socket.socket(fileno=peer.detach()).close()


def mail(peer):
    """Says more behind its answer to STARTTLS than it may: who listens between could have."""
    heard = []

    def lines(stream):
        for line in stream:
            text = line.decode().strip()
            heard.append(text)
            (folder / "heard").write_text("\n".join(heard) + "\n")
            yield text
    peer.sendall(b"220 hello\r\n")
    for line in lines(peer.makefile("rb", buffering=0)):
        if line.startswith("EHLO"):
            peer.sendall(b"250-hello\r\n250 STARTTLS\r\n")
        elif line == "STARTTLS":
            peer.sendall(b"220 go\r\n250-injected\r\n250 AUTH PLAIN\r\n")
            break
    heard.append("secured")
    with context("good").wrap_socket(peer, server_side=True) as secured:
        for line in lines(secured.makefile("rb")):
            if line.startswith("EHLO"):
                secured.sendall(b"250-hello\r\n250 AUTH CRAM-MD5 LOGIN\r\n")
            elif line.startswith("AUTH"):
                secured.sendall(b"334 PDFAeD4=\r\n")
            elif line == "QUIT":
                secured.sendall(b"221 bye\r\n")
                return
            else:
                secured.sendall(b"235 in\r\n")


SERVERS = {
    "GOOD": lambda: with_tls("good"),
    "EXPIRED": lambda: with_tls("expired"),
    "OTHER": lambda: with_tls("other"),
    "SELF": lambda: with_tls("self"),
    "OLD": lambda: with_tls("good", oldest=True),
    "CUT": lambda: with_tls("good", cut),
    "CLOSING": lambda: lambda peer: peer.recv(10),
    "CLEAR": lambda: lambda peer: peer.sendall(b"220 hello\r\n") or peer.recv(1000),
    "SILENT": lambda: lambda peer: peer.recv(1000) and peer.recv(1000),
    "MAIL": lambda: mail,
}


def listen(script, listener):
    def handle(peer):
        try:
            with peer:
                script(peer)
        except (OSError, ssl.SSLError):
            pass
    while True:
        threading.Thread(target=handle, args=(listener.accept()[0],), daemon=True).start()


make_certificates()
threads, ports = [], []
for server, make in SERVERS.items():
    listener = socket.create_server(("127.0.0.1", 0))
    ports.append(f"{server} {listener.getsockname()[1]}")
    threads.append(threading.Thread(target=listen, args=(make(), listener), daemon=True))
    threads[-1].start()
# The one of no days ends now.
time.sleep(1.5)
fingerprint = subprocess.run(["openssl", "x509", "-in", "self.pem", "-noout", "-fingerprint", "-sha256"], cwd=folder,
                             check=True, capture_output=True, text=True).stdout.split("=")[1].strip()
(folder / "fingerprint").write_text(fingerprint)
(folder / "ports.new").write_text("\n".join(ports) + "\n")
(folder / "ports.new").rename(folder / "ports")
for thread in threads:
    thread.join()
