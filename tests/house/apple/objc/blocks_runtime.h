// The free runtime has a header of its own for blocks; the syntax check needs nothing of it.
