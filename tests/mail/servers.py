# SPDX-License-Identifier: GPL-3.0-or-later
"""Mail servers on loopback, certificates of a story's own, classes, and runs of the command line."""
import asyncio
import atexit
import json
import logging
import os
import pathlib
import pwd
import socket
import ssl
import subprocess
import sys
import tempfile
import threading
import time
import traceback
import warnings

CLI = os.environ["TALLYROLL_CLI"]
PATIENCE = 60

# That a client refuses a certificate is what the stories are about.
logging.getLogger("mail.log").setLevel(logging.CRITICAL)
warnings.simplefilter("ignore")


class Failure(Exception):
    pass


def expect(what, actual, wanted):
    if actual != wanted:
        raise Failure(f"{what}: {actual!r} instead of {wanted!r}")


def build_class(path, count, name="Ng"):
    """Students with the IDs 1 to count, an address and a mark each."""
    students = [{"lastname": f"{name}{i}", "firstname": "Ad\u00e8le", "id": str(i),
                 "email": f"parent{i}@home.example", "Marks": ["", "18"]}
                for i in range(1, count + 1)]
    record = {"Instruments": [{"title": "\u00c9preuve", "code": "E1", "typecode": "Q ", "mvalue": 20,
                               "testdate": "9/3/2026"}], "Students": students}
    subprocess.run([CLI, "build", "-", path], input=json.dumps(record), text=True, check=True,
                   timeout=PATIENCE)
    return path


def mail(path, *options, wait=True, **popen):
    """tallyroll-cli mail with the report on each student's grades."""
    line = [CLI, "mail", path, "--report", "13", "--from", "teacher@school.example", *map(str, options)]
    process = subprocess.Popen(line, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **popen)
    if not wait:
        return process
    out, err = process.communicate(timeout=PATIENCE)
    return process.returncode, out, err


def states(out):
    """The first word of each line."""
    return [line.split("\t")[0].split(" ")[0].rstrip(":") for line in out.splitlines()]


def certificate(folder, name, subject="localhost", days=2, start=None):
    """Key and certificate that sign themselves."""
    key, cert = (str(pathlib.Path(folder) / f"{name}.{part}") for part in ("key", "pem"))
    line = ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", key, "-out", cert,
            "-subj", f"/CN={subject}", "-addext", f"subjectAltName=DNS:{subject}"]
    if start is None:
        subprocess.run([*line, "-days", str(days)], check=True, capture_output=True, timeout=PATIENCE)
        return key, cert
    request = str(pathlib.Path(folder) / f"{name}.csr")
    config = pathlib.Path(folder) / f"{name}.cnf"
    config.write_text(f"""[ca]
default_ca = it
[it]
dir = {folder}
database = {folder}/{name}.index
new_certs_dir = {folder}
serial = {folder}/{name}.serial
default_md = sha256
policy = any
x509_extensions = ext
[any]
commonName = supplied
[ext]
subjectAltName = DNS:{subject}
basicConstraints = CA:TRUE
""")
    (pathlib.Path(folder) / f"{name}.index").write_text("")
    (pathlib.Path(folder) / f"{name}.serial").write_text("01\n")
    quiet = {"check": True, "capture_output": True, "timeout": PATIENCE}
    subprocess.run(["openssl", "req", "-new", "-newkey", "rsa:2048", "-nodes", "-keyout", key, "-out",
                    request, "-subj", f"/CN={subject}"], **quiet)
    subprocess.run(["openssl", "ca", "-batch", "-selfsign", "-keyfile", key, "-in", request, "-out", cert,
                    "-config", str(config), "-startdate", start[0], "-enddate", start[1], "-notext"],
                   **quiet)
    return key, cert


class Mailbox:
    """What arrived: sender, recipients, bytes, and whether it was encrypted."""

    def __init__(self):
        self.arrived = []

    async def handle_DATA(self, server, session, envelope):
        self.arrived.append((envelope.mail_from, envelope.rcpt_tos, envelope.original_content,
                             server.transport.get_extra_info("sslcontext") is not None))
        return "250 taken"


class AioServer:
    """python3-aiosmtpd in a thread. `key` and `cert` make it speak TLS, from the first byte on with
    `at_once`; with `login` it wants a name and a password."""

    def __init__(self, box, key=None, cert=None, at_once=False, login=None):
        from aiosmtpd.smtp import AuthResult, LoginPassword, SMTP
        context = None
        if cert:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(cert, key)

        def check(server, session, envelope, mechanism, data):
            good = isinstance(data, LoginPassword) and (data.login, data.password) == login
            return AuthResult(success=good, handled=False)

        def make():
            return SMTP(box, hostname="localhost", tls_context=None if at_once else context,
                        require_starttls=bool(context) and not at_once,
                        authenticator=check if login else None, auth_required=bool(login),
                        auth_require_tls=False)
        self.loop = asyncio.new_event_loop()
        ready = threading.Event()

        async def serve():
            self.server = await self.loop.create_server(make, "127.0.0.1", 0,
                                                        ssl=context if at_once else None)
            self.port = self.server.sockets[0].getsockname()[1]
            ready.set()

        def run():
            asyncio.set_event_loop(self.loop)
            self.loop.set_exception_handler(lambda *_: None)  # a client that refuses a certificate
            self.loop.create_task(serve())
            self.loop.run_forever()
        self.thread = threading.Thread(target=run, daemon=True)
        self.thread.start()
        ready.wait(PATIENCE)


class Exim:
    """The Exim of the system on loopback, with STARTTLS and a login, passing on what it takes to `box`.
    Only root may start it."""

    PROGRAM = "/usr/sbin/exim4"
    LOGIN = ("ada", "s3cret")

    @classmethod
    def is_there(cls):
        return os.path.exists(cls.PROGRAM) and os.geteuid() == 0

    def __init__(self, box):
        self.relay = AioServer(box)
        self.home = tempfile.TemporaryDirectory()
        home = self.home.name
        self.key, self.cert = certificate(home, "exim")
        with socket.create_server(("127.0.0.1", 0)) as free:
            self.port = free.getsockname()[1]
        config = pathlib.Path(home) / "exim.conf"
        config.write_text(f"""primary_hostname = localhost
spool_directory = {home}/spool
log_file_path = {home}/%slog
local_interfaces = 127.0.0.1
daemon_smtp_ports = {self.port}
tls_advertise_hosts = *
tls_certificate = {self.cert}
tls_privatekey = {self.key}
keep_environment =
rfc1413_hosts =
acl_smtp_rcpt = accept
begin routers
on:
  driver = manualroute
  route_list = * 127.0.0.1
  self = send
  transport = on
begin transports
on:
  driver = smtp
  port = {self.relay.port}
  allow_localhost
  hosts_try_fastopen =
begin authenticators
login:
  driver = plaintext
  public_name = LOGIN
  server_prompts = "Username:: : Password::"
  server_condition = ${{if and{{{{eq{{$auth1}}{{{self.LOGIN[0]}}}}}{{eq{{$auth2}}{{{self.LOGIN[1]}}}}}}}}}
""")
        user = pwd.getpwnam("Debian-exim")
        for path in (home, self.key):
            os.chown(path, user.pw_uid, user.pw_gid)
        self.process = subprocess.Popen([self.PROGRAM, "-C", str(config), "-bdf"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        atexit.register(self.stop)
        for _ in range(200):
            try:
                socket.create_connection(("127.0.0.1", self.port), 1).close()
                return
            except OSError:
                time.sleep(0.05)
        raise Failure("Exim does not come up")

    def stop(self):
        self.process.terminate()
        self.process.wait()
        self.home.cleanup()


def wait_for(what, condition, patience=PATIENCE):
    end = time.monotonic() + patience
    while not condition():
        if time.monotonic() > end:
            raise Failure(f"waited in vain for {what}")
        time.sleep(0.05)


class LineServer:
    """A server by its lines: `answer(verb, line)` gives the reply, None for the usual one, "" for
    none, "close" to hang up. `heard` is told each line before it is answered."""

    USUAL = {"EHLO": "250-localhost\r\n250 SIZE 10000000", "HELO": "250 hi", "MAIL": "250 ok",
             "RCPT": "250 ok", "DATA": "354 go on", "TEXT": "250 taken", "QUIT": "221 bye",
             "CONNECT": "220 localhost", "RSET": "250 ok"}

    def __init__(self, answer=lambda verb, line: None, heard=lambda verb: None):
        self.answer, self.heard = answer, heard
        self.arrived = []  # recipients of what was taken
        self.socket = socket.create_server(("127.0.0.1", 0))
        self.port = self.socket.getsockname()[1]
        threading.Thread(target=self.accept, daemon=True).start()

    def accept(self):
        while True:
            connection, _ = self.socket.accept()
            threading.Thread(target=self.serve, args=(connection,), daemon=True).start()

    def reply(self, connection, verb, line):
        self.heard(verb)
        text = self.answer(verb, line)
        if text is None:
            text = self.USUAL.get(verb, "250 ok")
        if text == "close":
            return False
        self.said = text
        if verb == "TEXT" and text.startswith("250"):
            self.arrived.append(self.to)
        if text:
            connection.sendall(text.encode() + b"\r\n")
        return True

    def serve(self, connection):
        with connection, connection.makefile("rb") as lines:
            try:
                if not self.reply(connection, "CONNECT", b""):
                    return
                for line in lines:
                    verb = line[:4].decode("latin-1").upper()
                    if verb == "RCPT":
                        self.to = line[len("RCPT TO:"):].split()[0].strip(b"<>").decode()
                    if not self.reply(connection, verb, line) or verb == "QUIT":
                        return
                    if verb == "DATA" and self.said.startswith("354"):
                        while (text := lines.readline()) not in (b".\r\n", b""):
                            pass
                        if not text or not self.reply(connection, "TEXT", b""):
                            return
            except OSError:
                pass


def run(tell):
    with tempfile.TemporaryDirectory() as folder:
        try:
            tell(folder)
        except Exception:  # the whole trace says more than its name
            traceback.print_exc()
            sys.exit(1)
