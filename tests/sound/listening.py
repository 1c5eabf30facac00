"""A sound server of a script's own, in any condition, and ears for the game's sounds.

    with Server() as server:            # one sink; its folder is the HOME and runtime folder to use
        server.hears("TADA", "DING")    # waits until these were heard, these alone, the last one whole
        server.freeze(), server.thaw(), server.stop(), server.start()
    with Server("nosink") as server:    # also "always": no hardware, "hung": never answers, "none"

The sink takes the samples as they are, so that a wave is found in the recording byte by byte; what
is neither silence nor a part of a wave is reported as UNKNOWN. Needs pulseaudio, pulseaudio-utils.
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import wave

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.append(os.path.join(HERE, os.pardir, "support"))
from processes import Failed, end, start, until

WAVES = os.path.normpath(os.path.join(HERE, os.pardir, os.pardir, "assets", "sounds"))
FILES = {name.split(".")[0].upper(): os.path.join(WAVES, name) for name in os.listdir(WAVES)
         if name.lower().endswith(".wav")}
RATE = 44100
HEAD = 128      # bytes by which a wave is known, 1.5 ms
OVERLAP = 16    # bytes that a cut wave may happen to share with the next one

# Without norewinds an idle null sink renders silence ahead, which swallows what comes first.
MODULES = {"nosink": [], "always": ["-L", "module-always-sink"]}
SINK = ["-L", f"module-null-sink sink_name=ear norewinds=1 format=s16le channels=1 rate={RATE}"]


def samples(path):
    """The samples of a wave without the silence around them."""
    with wave.open(path, "rb") as file:
        data = file.readframes(file.getnframes())
    first = len(data) - len(data.lstrip(b"\0"))
    last = len(data.rstrip(b"\0"))
    return data[first - first % 2:last + last % 2]


SOUNDS = {name: samples(path) for name, path in FILES.items()}


def recognised(recording):
    """What a recording holds, in order: pairs of a name and whether it was heard to its end."""
    found, at, search = [], 0, 0
    while True:
        begins = [(recording.find(data[:HEAD], search), name) for name, data in SOUNDS.items()]
        begin, name = min((pair for pair in begins if pair[0] >= 0), default=(len(recording), None))
        if recording[at:begin].strip(b"\0"):
            found.append(("UNKNOWN", False))
        if name is None:
            return found
        data = SOUNDS[name]
        length = len(os.path.commonprefix([recording[begin:begin + len(data)], data]))
        found.append((name, length == len(data)))
        at = begin + length
        search = at if length == len(data) else max(begin + 2, at - OVERLAP)


class Server:
    def __init__(self, kind="null"):
        self.kind, self.server, self.recorder = kind, None, None
        self.folder = tempfile.mkdtemp(prefix="malvone-")
        os.chmod(self.folder, 0o700)
        self.recording = os.path.join(self.folder, "recording")
        self.env = {key: value for key, value in os.environ.items()
                    if not key.startswith(("PULSE_", "XDG_", "DBUS"))}
        self.env.update(HOME=self.folder, XDG_RUNTIME_DIR=self.folder)

    def __enter__(self):
        try:
            if self.kind != "none":
                self.start()
            if self.kind == "hung":
                self.freeze()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *error):
        self.stop()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self):
        quiet = {"env": self.env, "stderr": subprocess.DEVNULL}
        self.server = start(["pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "-n",
                             *MODULES.get(self.kind, SINK), "-L", "module-native-protocol-unix"],
                            stdout=subprocess.DEVNULL, **quiet)
        self.answers()
        if self.kind in MODULES or self.kind == "hung":
            return
        with open(self.recording, "ab") as file:
            before = os.path.getsize(self.recording)
            self.recorder = start(["parec", "-d", "@DEFAULT_MONITOR@", "--raw", "--format=s16le",
                                   "--channels=1", f"--rate={RATE}", "--latency-msec=10"],
                                  stdout=file, **quiet)
        until(lambda: os.path.getsize(self.recording) > before, "the recorder, to hear silence")

    def stop(self):
        end(self.recorder)
        end(self.server)

    def freeze(self):
        self.server.send_signal(signal.SIGSTOP)

    def thaw(self):
        self.server.send_signal(signal.SIGCONT)
        self.answers()

    def answers(self):
        until(lambda: subprocess.run(["pactl", "info"], env=self.env, capture_output=True,
                                     timeout=60).returncode == 0, "pulseaudio")

    def heard(self):
        with open(self.recording, "rb") as file:
            return recognised(file.read())

    def hears(self, *names, whole=True):
        """Waits for the last of these sounds: for its end, or for its beginning alone."""
        def there():
            heard = self.heard()
            return [name for name, _ in heard] == list(names) and (heard[-1][1] or not whole)
        try:
            until(there, "", 20)
        except Failed:
            told = [name + ("" if whole else " (cut)") for name, whole in self.heard()]
            raise Failed(f"wanted {', '.join(names)}; heard {', '.join(told)}") from None
