function showSea() {}
