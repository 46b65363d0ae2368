"""A file for each group of benchmarks: run() measures on this machine, run_in_lab() in a private Tor network."""
