"""An SMTP server that writes each mail to the folder QEL_SINK and refuses refused.test."""
import asyncio
import os

from aiosmtpd.smtp import SMTP


class Sink:
    count = 0

    async def handle_RCPT(self, server, session, envelope, address, options):
        if address.endswith("@refused.test"):
            return "550 not here"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        self.count += 1
        with open(os.path.join(os.environ["QEL_SINK"], f"{self.count}.eml"), "wb") as file:
            file.write(" ".join([envelope.mail_from, *envelope.rcpt_tos]).encode() + b"\r\n")
            file.write(envelope.original_content)
        return "250 OK"


async def serve():
    sink = Sink()
    server = await asyncio.get_running_loop().create_server(
        lambda: SMTP(sink, hostname="sink.test", data_size_limit=0),
        "127.0.0.1", int(os.environ["QEL_SINK_PORT"]))
    await server.serve_forever()


asyncio.run(serve())
