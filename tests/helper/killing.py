"""What the tests share that kill the helper at a point of its way."""

import os
import time

import namespace
from namespace import HASH, TOR, HelperTest
from wire import EDGE, LINK, Flood, Wire

STEPPED = os.path.join(namespace.HERE, "stepped.sh")
EVERY = int(os.environ.get("VELDMARK_KILL_EVERY", "1"))  # 1: after each single change
BEFORE, AFTER = "before", "after"


def connect_words(strict):
    return ["connect", "--tor", TOR, "--hash", HASH, "--strict", strict, "--lan", "0"]


class Kill(HelperTest):
    """The user has KDE, so that the helper changes the desktop's settings as well."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.set_up_services()
        cls.machine.tor_uid = cls.machine.shell("id -u _veldmark").strip()
        cls.wire = Wire(cls.machine)
        cls.edge_program = cls.wire.edge_program()
        cls.flood = Flood(cls.machine)
        cls.before = cls.snapshot()

    @classmethod
    def set_up_services(cls):
        """Starts the services that a session changes as well."""
        cls.machine.give_ethtool()
        cls.machine.run(
            "/bin/bash",
            "-c",
            "mkdir /home/alice/.config; printf '[Proxy Settings]\nProxyType=4\n' >/home/alice/.config/kioslaverc",
            uid=namespace.USER_UID,
        )

    @classmethod
    def snapshot(cls):
        return cls.machine.snapshot()

    @staticmethod
    def sample(points):
        return points[::EVERY]

    @classmethod
    def tearDownClass(cls):
        cls.flood.close()
        cls.wire.close()
        super().tearDownClass()

    def stepped(self, kill_after, edge, words):
        return self.machine.run(
            "env",
            "-i",
            f"PKEXEC_UID={namespace.USER_UID}",
            "/bin/bash",
            "-p",
            STEPPED,
            self.machine.helper,
            "/run/changes",
            kill_after,
            edge,
            self.edge_program,
            *words,
            check=False,
        )

    def connect(self, strict="1"):
        """Connects as the user's program does."""
        self.machine.help(*connect_words(strict), env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(namespace.USER_UID)})

    def changes(self, words):
        done = self.stepped("", "", words)
        self.assertEqual(done.returncode, 0, done.stderr)
        return self.machine.shell("cat /run/changes; rm -f /run/changes").splitlines()

    def state(self):
        """The state after a kill: the marker, whether the kill switch blocks traffic, whether there are rules, whether the resolver
        points at Tor."""
        # The killed shell's children still hold the lock; the next run waits for them as well.
        text = self.machine.shell(
            "exec 9>>/run/veldmark.lock; flock 9; read -r marker </var/lib/veldmark/state/active; echo $marker; "
            "nft list ruleset; cat /etc/resolv.conf"
        )
        return text.split("\n")[0], "policy drop" in text, "table inet" in text, "nameserver 127.0.0.1" in text

    def is_open(self):
        """Waits until the probes are seen."""
        self.wire.wait_for(lambda line: line not in LINK and not line.startswith("sentinel"))

    def assert_restored(self):
        """One disconnect restores everything: the probes are seen again, and the snapshot is the same."""
        self.machine.help("disconnect")
        self.flood.go()
        self.is_open()
        self.flood.stop()
        self.assertEqual(self.snapshot(), self.before)

    def trial(self, prepare, run, check, edge="", closed=None):
        """`closed`: BEFORE or AFTER the edge, no probe may be seen as long as rules drop. None checks nothing."""
        restored = False
        try:
            done = self.begin_trial(prepare, run, check, edge, closed)
            self.assert_restored()
            restored = True
        finally:
            if not restored:  # a failure here must not fail the next point as well
                self.machine.help("disconnect", check=False)
                self.flood.stop()
        return done

    def begin_trial(self, prepare, run, check, edge, closed):
        self.flood.go()
        self.is_open()
        if closed != AFTER:  # nothing looks at the probes of this time, which take much of a processor
            self.flood.stop()
        prepare()
        if closed == BEFORE:  # otherwise probes before the edge are allowed
            self.flood.go()
            self.wire.mark()
        done = run(edge)
        state = self.state()
        seen = self.wire.mark()
        check(state)
        if closed == AFTER:
            seen = seen[seen.index(EDGE) :] if EDGE in seen else [] if not state[1] else self.fail("the rules stand without a mark")
        elif closed == BEFORE and EDGE in seen:
            seen = seen[: seen.index(EDGE)]
        elif closed == BEFORE:
            self.assertTrue(state[1])
        if closed:
            self.assertEqual(set(seen) - LINK - {EDGE}, set())
        return done

    def every_point(self, prepare, words, check, edge="", closed=None, only=lambda point: True):
        prepare()
        points = [point for point in self.changes(words) if only(point)]
        self.machine.help("disconnect")
        started = time.monotonic()
        tried = self.sample(points)
        for point in tried:
            with self.subTest(point):
                done = self.trial(prepare, lambda e, p=point: self.stepped(p, e, words), check, edge, closed)
                # The number of a process's children differs from run to run.
                if '"$child" #' not in point:
                    self.assertIn(done.returncode, (-9, 137), f"this change was not reached: {done.stderr}")
        print(
            f"{self.id().split('.', 1)[1]}: killed at {len(tried)} of {len(points)} points, {time.monotonic() - started:.0f} s",
            flush=True,
        )
        return len(points)
