// What the free runtime has of its own for blocks; the syntax check needs none of it.
